#include "app/persistence/json/JsonRead.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;
using tw::core::ContentId;

namespace {

QJsonValue parsed(const QByteArray& json)
{
    return QJsonDocument::fromJson('[' + json + ']').array().at(0);
}

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
        const QJsonValue value = parsed(expected.json);
        EXPECT_EQ(readInteger(value, none), expected.integer) << expected.json.constData();
        EXPECT_EQ(readDouble(value, none), expected.number) << expected.json.constData();
        EXPECT_EQ(readBool(value, true), expected.isTrue) << expected.json.constData();
        EXPECT_EQ(readText(value, u"fallback"_s), expected.text) << expected.json.constData();
    }
    EXPECT_EQ(readInteger(QJsonValue(QJsonValue::Undefined), 3), 3);
    EXPECT_EQ(readInteger32(parsed("-3000000000")), std::numeric_limits<qint32>::min());
    EXPECT_EQ(readInteger32(parsed("\"3e9\"")), std::numeric_limits<qint32>::max());
    EXPECT_FALSE(readBool(parsed("\"no idea\"")));
}

TEST(JsonRead, takesTheStringsOfAListAndOnlyWholeIds)
{
    EXPECT_EQ(readTextList(parsed(R"(["a", 1, null, "", "b", ["c"]])")), (QStringList{u"a"_s, {}, u"b"_s}));
    EXPECT_EQ(readTextList(parsed("\"a\"")), QStringList());
    const QString text = u"6f1c1e0a-2b3c-4d5e-8f90-a1b2c3d4e5f6"_s;
    EXPECT_EQ(readId<ContentId>(text).toString(), text);
    EXPECT_EQ(readOptionalId<ContentId>(QString(u'{' + text + u'}'))->toString(), text);
    EXPECT_FALSE(readOptionalId<ContentId>(QString(text + u"-and-more"_s)));
    EXPECT_TRUE(readId<ContentId>(parsed("12")).isNull());
}

TEST(JsonRead, saysWhyAFileHoldsNoObject)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"100%1.json"_s);
    EXPECT_EQ(readJsonFile(path).message(), u"Cannot read file: "_s + path);
    EXPECT_EQ(readJsonFile(folder.path()).message(), u"Cannot read file: "_s + folder.path());
    for (const char* broken : {"", "[]", "{\"a\": 1", "{} x", "\"text\"", "{\"a\": 1e999}"}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(broken);
        file.close();
        EXPECT_EQ(readJsonFile(path).message(), u"Invalid JSON in file: "_s + path) << broken;
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"a\": \"b\"}");
    file.close();
    EXPECT_EQ(readJsonFile(path).value().value(u"a"_s), u"b"_s);
}
