#include "app/persistence/json/JsonRead.h"

#include "core/foundation/Id.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;
using tw::core::ContentId;

namespace {

/** One value as it stands in a file. */
class Parsed
{
public:
    explicit Parsed(const QByteArray& json)
        : m_bytes("{\"v\": " + json + '}')
    {
        EXPECT_TRUE(m_tree.parse(m_bytes)) << json.constData();
    }

    [[nodiscard]] JsonNode value() const { return m_tree.root().value("v"_L1); }

private:
    QByteArray m_bytes;
    JsonTree m_tree;
};

} // namespace

TEST(JsonRead, understandsScalarsThatAHandHasTouched)
{
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    constexpr qint64 highest = std::numeric_limits<qint64>::max();
    constexpr qint64 none = -77;
    const struct
    {
        QByteArray json;
        qint64 integer;
        double number;
        bool isTrue;
        QString text;
    } cases[] = {
        {"12", 12, 12.0, true, u"12"_s},
        {"-2.9", -2, -2.9, true, u"-2.9"_s},
        {"0", 0, 0.0, false, u"0"_s},
        {"9007199254740993", 9007199254740993, 9007199254740992.0, true, u"9007199254740993"_s},
        {"9223372036854775807", highest, 0x1p63, true, u"9223372036854775807"_s},
        {"-9223372036854775808", lowest, -0x1p63, true, u"-9223372036854775808"_s},
        {"1e300", highest, 1e300, true, u"1e+300"_s},
        {"-1e300", lowest, -1e300, true, u"-1e+300"_s},
        {"true", 1, 1.0, true, u"true"_s},
        {"false", 0, 0.0, false, u"false"_s},
        {"\" 12 \"", 12, 12.0, true, u" 12 "_s},
        {"\"9007199254740993\"", 9007199254740993, 9007199254740992.0, true, u"9007199254740993"_s},
        {"\"99999999999999999999\"", highest, 1e20, true, u"99999999999999999999"_s},
        {"\"-2.9\"", -2, -2.9, true, u"-2.9"_s},
        {"\"0.0\"", 0, 0.0, false, u"0.0"_s},
        {"\"True\"", 1, none, true, u"True"_s},
        {"\"false\"", 0, none, false, u"false"_s},
        {"\"inf\"", none, none, true, u"inf"_s},
        {"\"twelve\"", none, none, true, u"twelve"_s},
        {"\"\"", none, none, true, QString()},
        {"null", none, none, true, u"fallback"_s},
        {"[1]", none, none, true, u"fallback"_s},
        {"{}", none, none, true, u"fallback"_s},
    };
    for (const auto& expected : cases) {
        const Parsed parsed(expected.json);
        const JsonNode value = parsed.value();
        EXPECT_EQ(readInteger(value).value_or(none), expected.integer) << expected.json.constData();
        EXPECT_EQ(readDouble(value).value_or(none), expected.number) << expected.json.constData();
        EXPECT_EQ(readBool(value).value_or(true), expected.isTrue) << expected.json.constData();
        EXPECT_EQ(readText(value).value_or(u"fallback"_s), expected.text) << expected.json.constData();
    }
    EXPECT_EQ(readInteger(JsonNode()), std::nullopt);
    EXPECT_EQ(readInteger32(Parsed("-3000000000").value()), std::numeric_limits<qint32>::min());
    EXPECT_EQ(readInteger32(Parsed("\"3e9\"").value()), std::numeric_limits<qint32>::max());
}

TEST(JsonRead, takesTheTextsOfAListAndOnlyWholeIds)
{
    EXPECT_EQ(
        readTextList(Parsed(R"(["a", 1, null, "", true, ["c"]])").value()),
        (QStringList{u"a"_s, u"1"_s, {}, u"true"_s}));
    EXPECT_EQ(readTextList(Parsed("\"a b\"").value()), QStringList{u"a b"_s});
    EXPECT_EQ(readTextList(Parsed("12").value()), QStringList{u"12"_s});
    EXPECT_EQ(readTextList(Parsed("null").value()), QStringList());
    const QByteArray text = "6f1c1e0a-2b3c-4d5e-8f90-a1b2c3d4e5f6";
    const auto id = [](const QByteArray& json) {
        return readId<ContentId>(Parsed('"' + json + '"').value());
    };
    EXPECT_EQ(id(text).toString().toLatin1(), text);
    EXPECT_EQ(id('{' + text + '}').toString().toLatin1(), text);
    EXPECT_TRUE(id(text + "-and-more").isNull());
    EXPECT_TRUE(readId<ContentId>(Parsed("12").value()).isNull());
}
