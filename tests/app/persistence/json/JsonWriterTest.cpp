#include "app/persistence/json/JsonWriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;

namespace {

QByteArray written(const QJsonValue& value)
{
    QByteArray output;
    JsonWriter(output).writeValue(value);
    return output;
}

/** Values of every shape that JSON has, from an explicit seed. */
class RandomJson
{
public:
    explicit RandomJson(std::uint64_t seed)
        : m_random(seed)
    {}

    QJsonObject object(int depth)
    {
        QJsonObject object;
        for (int count = below(6); count > 0; --count)
            object.insert(text(below(12)), value(depth));
        return object;
    }

    QString text(qsizetype length)
    {
        static constexpr char16_t ranges[][2] = {{u' ', u'~'},    {u'a', u'z'},  {0, 0x1f},
                                                 {0x20, 0x80},    {0x80, 0x900}, {0xd7f0, 0xe010},
                                                 {0xfff0, 0xffff}};
        QString text;
        while (text.size() < length) {
            const auto& range = ranges[below(std::size(ranges))];
            for (int run = below(20); run >= 0; --run) {
                const int unit = range[0] + below(range[1] - range[0] + 1);
                text.append(QChar(static_cast<char16_t>(unit)));
            }
        }
        return text;
    }

    double number() { return std::bit_cast<double>(m_random()); }

private:
    int below(std::size_t limit) { return static_cast<int>(m_random() % limit); }
    int below(int limit) { return below(static_cast<std::size_t>(limit)); }

    QJsonValue value(int depth)
    {
        switch (below(depth > 0 ? 9 : 6)) {
        case 0:
            return below(2) == 1;
        case 1:
            return QJsonValue::Null;
        case 2:
            return static_cast<qint64>(m_random() >> below(64));
        case 3:
            return std::isfinite(number()) ? std::ldexp(below(100'000) - 50'000, below(80) - 40) : 0.5;
        case 4:
        case 5:
            return text(below(40));
        case 6:
            return object(depth - 1);
        default: {
            QJsonArray array;
            for (int count = below(6); count > 0; --count)
                array.append(value(depth - 1));
            return array;
        }
        }
    }

    std::mt19937_64 m_random;
};

} // namespace

TEST(JsonWriter, writesTheBytesOfQtForRandomValues)
{
    RandomJson random(1);
    for (int round = 0; round < 400; ++round) {
        const QJsonObject object = random.object(5);
        ASSERT_EQ(written(object), QJsonDocument(object).toJson());
    }
    const QJsonObject longTexts{{u"body"_s, random.text(50'000)}, {u"plain"_s, QString(20'000, u'x')}};
    EXPECT_EQ(written(longTexts), QJsonDocument(longTexts).toJson());
}

TEST(JsonWriter, writesEveryNumberAsQtDoes)
{
    RandomJson random(2);
    QList<double> numbers{
        0.0,  -0.0, 0.1,   1e15,   9007199254740992.0,    9007199254740994.0, -9007199254740994.0,
        1e17, 1e22, 1e300, 5e-324, 9223372036854775808.0, 123456789.5,        1e-7};
    for (int round = 0; round < 2000; ++round) {
        if (const double number = random.number(); std::isfinite(number))
            numbers.append(number);
    }
    for (const double number : numbers) {
        QByteArray output;
        JsonWriter writer(output);
        writer.beginArray();
        writer.writeDouble(number);
        writer.endArray();
        EXPECT_EQ(output, QJsonDocument(QJsonArray{number}).toJson()) << number;
    }
}

TEST(JsonWriter, keepsTheGivenOrderAndAppendsDocumentAfterDocument)
{
    QByteArray output = "before\n";
    JsonWriter writer(output);
    writer.beginObject();
    writer.key("zebra"_L1);
    writer.writeInteger(std::numeric_limits<qint64>::min());
    writer.key(QStringView(u"apple"));
    writer.beginArray();
    writer.writeDouble(std::numeric_limits<double>::infinity());
    writer.writeDouble(std::nan(""));
    writer.beginObject();
    writer.endObject();
    writer.beginArray();
    writer.endArray();
    writer.writeBool(false);
    writer.endArray();
    writer.key("q\"\xe9"_L1);
    writer.writeText(u"a\u0001\u007f\n\u00e9\U0001f600");
    writer.endObject();
    writer.beginArray();
    writer.endArray();
    EXPECT_EQ(
        output, R"(before
{
    "zebra": -9223372036854775808,
    "apple": [
        0,
        0,
        {
        },
        [
        ],
        false
    ],
    "q\"é": "a\u0001)"
                "\x7f"
                R"(\né😀"
}
[
]
)");
}
