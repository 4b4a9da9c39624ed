#include "app/persistence/json/JsonWriter.h"

#include "app/persistence/json/RandomJson.h"

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
