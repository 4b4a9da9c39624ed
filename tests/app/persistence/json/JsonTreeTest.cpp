#include "app/persistence/json/JsonTree.h"

#include "app/persistence/json/JsonWriter.h"
#include "app/persistence/json/RandomJson.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;

namespace {

/** Both parsers accept the text as an object and find the same in it, or both refuse it. */
void expectSameAsQt(const QByteArray& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    JsonTree tree;
    const bool isAccepted = tree.parse(json);
    EXPECT_EQ(isAccepted, document.isObject()) << json.left(200).constData();
    if (!isAccepted)
        return;
    // Written and read once more, since Qt sorts keys beyond the basic plane differently when it parses.
    QByteArray found;
    JsonWriter(found).writeValue(tree.root().toJsonValue());
    EXPECT_EQ(QJsonDocument::fromJson(found).toJson(), document.toJson());
}

} // namespace

TEST(JsonTree, findsWhatQtFindsInRandomObjects)
{
    RandomJson random(11);
    for (int round = 0; round < 300; ++round) {
        const QJsonDocument document(random.object(5));
        expectSameAsQt(document.toJson(QJsonDocument::Indented));
        expectSameAsQt(document.toJson(QJsonDocument::Compact));
    }
}

TEST(JsonTree, acceptsAndRefusesWhatQtDoes)
{
    const char* const values[] = {
        "0",
        "-0",
        "-",
        "+1",
        "01",
        "-01",
        "1.",
        ".5",
        "1.5",
        "-1.5e3",
        "1e",
        "1e+",
        "1E-2",
        "1e5",
        "1e400",
        "-1e400",
        "1e-400",
        "-1e-400",
        "2e-324",
        "3e-324",
        "0.0",
        "-0.0",
        "0e0",
        "00",
        "1.e3",
        "-.5",
        "0x10",
        "1_0",
        "NaN",
        "Infinity",
        "9223372036854775807",
        "9223372036854775808",
        "-9223372036854775808",
        "-9223372036854775809",
        "123456789012345678",
        "1234567890123456789",
        "99999999999999999999999",
        "1.0",
        "1e18",
        "9007199254740993.0",
        "true",
        "True",
        "tru",
        "truee",
        "null",
        "nul",
        "\"\"",
        "\"a",
        "\"\\",
        "\"\\\"",
        "\"\\n\\t\\b\\f\\r\\/\\\\\\\"\"",
        "\"\\x\"",
        "\"\\u00e9\"",
        "\"\\u00E9\"",
        "\"\\u00g9\"",
        "\"\\u12\"",
        "\"\\ud83d\\ude00\"",
        "\"\\ud83d\"",
        "\"\\ud83d\\u0041\"",
        "\"\\ude00\\ud83d\"",
        "\"\\u0000\"",
        "\"\xc3\xa9\"",
        "\"\xc3\"",
        "\"\xff\"",
        "\"\xed\xa0\x80\"",
        "\"\xf0\x9f\x98\x80\"",
        "\"\xc0\x80\"",
        "\"a\nb\"",
        "\"a\tb\"",
        "\"\x01\"",
        "\"\x7f\"",
        "[]",
        "[ ]",
        "[1,]",
        "[,1]",
        "[1 2]",
        "[1,2",
        "[[[]]]",
        "{}",
        "{ }",
        "{\"a\"}",
        "{\"a\":}",
        "{\"a\":1,}",
        "{a:1}",
        "{\"a\":1 \"b\":2}",
        "{\"a\":1,\"b\":2}",
        "{\"a\":1,\"a\":[2]}",
        "'a'",
        "/**/1",
        "",
        "1 ,",
        "[1}",
        "\"\\u00e9\\\\\xc3\xa9\\n\""};
    for (const QByteArray value : values) {
        expectSameAsQt("{\"v\": " + value + '}');
        expectSameAsQt(value);
        expectSameAsQt("{\"" + value + "\": 1}");
        expectSameAsQt("\xef\xbb\xbf \t\r\n{\"v\" :" + value + "\n} ");
        expectSameAsQt("{\"v\": " + value + "} x");
    }
    for (const int depth : {1, 500, 1022, 1023, 1024, 1025, 5000}) {
        expectSameAsQt("{\"v\": " + QByteArray(depth, '[') + QByteArray(depth, ']') + '}');
        expectSameAsQt("{\"v\": " + QByteArray(depth, '['));
        expectSameAsQt(QByteArray("{\"v\": ").repeated(depth) + '1' + QByteArray(depth, '}'));
    }
}

TEST(JsonTree, judgesDamagedTextsAsQtDoes)
{
    RandomJson source(12);
    std::mt19937 random(13);
    const auto below = [&](qsizetype limit) {
        return std::uniform_int_distribution<qsizetype>(0, limit - 1)(random);
    };
    for (int round = 0; round < 4000; ++round) {
        QByteArray json = QJsonDocument(source.object(3)).toJson(QJsonDocument::Compact);
        static constexpr char likely[] = "{}[]\",:\\u0e-.1tn \n\x80\xc3";
        for (qsizetype damage = below(3); damage >= 0; --damage) {
            const qsizetype place = below(json.size());
            switch (below(3)) {
            case 0:
                json[place] = likely[below(std::ssize(likely) - 1)];
                break;
            case 1:
                json.insert(place, likely[below(std::ssize(likely) - 1)]);
                break;
            default:
                json.remove(place, 1 + below(3));
                json.append(' ');
            }
        }
        expectSameAsQt(json);
    }
}

TEST(JsonTree, readsEveryValueAlikeWhicheverParserReadIt)
{
    // Only Qt's parser takes a tab as it stands, or half of a surrogate pair.
    for (const QByteArray neighbour : {"1", "\"\t\"", "\"\\ud83d\""}) {
        const QByteArray json =
            R"({"exact": -9007199254740993, "largest": 9223372036854775807, "whole": 2.50e1,
            "beyond": 9223372036854775808, "fraction": -2.5, "text": "\ufeffä\n\ufeff", "\u0061b": "ab",
            "list": [null, true, {}], "other": )" +
            neighbour + '}';
        JsonTree tree;
        ASSERT_TRUE(tree.parse(json)) << json.constData();
        const JsonNode root = tree.root();
        EXPECT_EQ(root.value("exact"_L1).integer(), -9007199254740993);
        EXPECT_EQ(root.value("largest"_L1).integer(), std::numeric_limits<qint64>::max());
        EXPECT_EQ(root.value("whole"_L1).integer(), 25);
        EXPECT_EQ(root.value("beyond"_L1).integer(), std::nullopt);
        EXPECT_EQ(root.value("beyond"_L1).number(), 0x1p63);
        EXPECT_EQ(root.value("fraction"_L1).integer(), std::nullopt);
        EXPECT_EQ(root.value("fraction"_L1).number(), -2.5);
        EXPECT_EQ(root.value("text"_L1).text(), u"\ufeffä\n\ufeff"_s);
        EXPECT_TRUE(root.value("ab"_L1).isText("ab"_L1));
        EXPECT_FALSE(root.value("ab"_L1).isText("a"_L1));
        EXPECT_FALSE(root.value("b"_L1).exists());
        EXPECT_FALSE(root.value("exact"_L1).value("a"_L1).exists());
        QStringList elements;
        root.value("list"_L1).forEachElement([&](const JsonNode& element) {
            elements.append(
                element.isNull()     ? u"null"_s
                : element.isTrue()   ? u"true"_s
                : element.isObject() ? u"object"_s
                                     : u"other"_s);
        });
        EXPECT_EQ(elements, (QStringList{u"null"_s, u"true"_s, u"object"_s}));
    }
}

TEST(JsonTree, takesTheLastOfEqualKeys)
{
    const QByteArray json = R"({"a": 1, "ä": 4, "a": 3, "b": 2})";
    JsonTree tree;
    ASSERT_TRUE(tree.parse(json));
    EXPECT_EQ(tree.root().value("a"_L1).integer(), 3);
    QStringList keys;
    tree.root().forEachMember([&](const JsonNode& key, const JsonNode&) { keys.append(key.text()); });
    EXPECT_EQ(keys, (QStringList{u"a"_s, u"ä"_s, u"a"_s, u"b"_s}));
}

TEST(JsonTree, isOfUseAgainAfterTextsOfEveryOutcome)
{
    JsonTree tree;
    EXPECT_TRUE(tree.parse("{\"a\": [1, \"x\"]}"));
    EXPECT_FALSE(tree.parse("{\"a\": [1, "));
    EXPECT_TRUE(tree.parse("{\"a\": \"\t\"}"));
    EXPECT_FALSE(tree.parse("[1]"));
    EXPECT_FALSE(tree.parse(""));
    ASSERT_TRUE(tree.parse("{\"a\": 2}"));
    EXPECT_EQ(tree.root().toJsonValue(), (QJsonObject{{u"a"_s, 2}}));
}
