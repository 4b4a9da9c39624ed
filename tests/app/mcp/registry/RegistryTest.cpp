#include "app/mcp/registry/ArgumentCheck.h"
#include "app/mcp/registry/Display.h"
#include "app/mcp/registry/McpServer.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/registry/ToolArguments.h"
#include "core/project/Project.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

namespace {

QJsonObject json(const char* text)
{
    return QJsonDocument::fromJson(text).object();
}

McpServer::Handler saying(const QString& text)
{
    return [text](const QJsonObject&) { return McpToolResult::success(text); };
}

} // namespace

TEST(McpServerTest, aNameRegisteredTwiceKeepsItsPlaceWithTheLaterTool)
{
    McpServer server(u"vellory"_s, u"1"_s, {});
    EXPECT_EQ(server.callTool(u"first"_s, {}), McpToolResult::failure(u"Unknown tool: first"_s));
    server.registerTool({u"first"_s, u"one"_s, {}}, saying(u"1"_s));
    server.registerTool({u"second"_s, u"two"_s, {}}, saying(u"2"_s));
    server.registerTool({u"first"_s, u"three"_s, {}}, saying(u"3"_s));
    ASSERT_EQ(server.tools().size(), 2u);
    EXPECT_EQ(server.tools()[0].name, u"first"_s);
    EXPECT_EQ(server.tools()[0].description, u"three"_s);
    EXPECT_EQ(server.callTool(u"first"_s, {}).text, u"3"_s);

    QStringList observed;
    server.setCallObserver([&observed](const QString& name) { observed.append(name); });
    EXPECT_EQ(server.callTool(u"Second"_s, {}), McpToolResult::failure(u"Unknown tool: Second"_s));
    EXPECT_TRUE(server.callTool(u"second"_s, {}).ok);
    EXPECT_EQ(observed, QStringList{u"second"_s});
}

TEST(SchemaTest, requiredStandsThereOnlyWhenSomethingIs)
{
    EXPECT_FALSE(makeObjectSchema({}).contains(u"required"));
    EXPECT_EQ(
        makeObjectSchema({{u"b"_s, textProperty(u"B"_s)}}, {u"b"_s, u"a"_s}),
        json(
            R"({"type":"object","properties":{"b":{"type":"string","description":"B"}},"required":["b","a"]})"));
}

TEST(ArgumentCheckTest, saysWhatIsMissingOrMistyped)
{
    const QJsonObject textOrTexts{
        {u"type"_s, QJsonArray{u"string"_s, u"array"_s}}, {u"items"_s, textProperty({})}};
    const McpToolSpec spec{
        u"light_lamp"_s,
        {},
        makeSubjectSchema(
            u"lamp"_s, {},
            {{u"place"_s, textProperty({})},
             {u"hours"_s, integerProperty({})},
             {u"brightness"_s, numberProperty({})},
             {u"dimmed"_s, booleanProperty({})},
             {u"mode"_s, choiceProperty({}, {u"steady"_s, u"blink"_s, u"off"_s}, Default::First)},
             {u"tags"_s, listProperty({}, textProperty({}))},
             {u"cells"_s, mapProperty({}, valueProperty({}))},
             {u"links"_s, mapProperty({}, textOrTexts)},
             {u"steps"_s,
              listProperty(
                  {}, recordProperty(
                          {}, {{u"at"_s, integerProperty({})}, {u"note"_s, textProperty({})}}, {u"at"_s}))}},
            {u"place"_s})};
    struct Case
    {
        const char* arguments;
        QString message;
    };
    const QString needs = u"light_lamp needs \"lamp\" (or \"id\") and \"place\"."_s;
    const Case cases[] = {
        {R"({"lamp":"a","place":"b"})", {}},
        {R"({"id":"a","place":"b","unknown":{}})", {}},
        {R"({})", needs},
        {R"({"lamp":"a"})", needs},
        {R"({"place":"b"})", needs},
        {R"({"lamp":7,"place":"b"})", needs},
        {R"({"lamp":"a","place":null})", needs},
        {R"({"lamp":"a","place":["b"]})", needs},
        {R"({"lamp":"a","place":"b","hours":3.0,"brightness":2,"dimmed":true,"mode":"blink"})", {}},
        {R"({"lamp":"a","place":"b","hours":null,"mode":null,"steps":null})", {}},
        {R"({"lamp":"a","place":"b","hours":3.5})", u"\"hours\" must be a whole number."_s},
        {R"({"lamp":"a","place":"b","hours":1e300})", u"\"hours\" must be a whole number."_s},
        {R"({"lamp":"a","place":"b","brightness":"2"})", u"\"brightness\" must be a number."_s},
        {R"({"lamp":"a","place":"b","dimmed":"true"})", u"\"dimmed\" must be true or false."_s},
        {R"({"lamp":"a","place":"b","mode":"x %1"})",
         u"Unknown \"mode\" 'x %1'; use steady (default), blink, or off."_s},
        {R"({"lamp":"a","place":"b","tags":"x"})", u"\"tags\" must be a list."_s},
        {R"({"lamp":"a","place":"b","tags":["x",{}]})", u"Entry 2 of \"tags\" must be a text."_s},
        {R"({"lamp":"a","place":"b","cells":{"A1":5,"A2":"x","A3":true,"A4":null}})", {}},
        {R"({"lamp":"a","place":"b","cells":{"A1":[5]}})",
         u"\"A1\" in \"cells\" must be a text, a number, or true or false."_s},
        {R"({"lamp":"a","place":"b","links":{"to":"x","from":["y","z"],"by":null,"at":[]}})", {}},
        {R"({"lamp":"a","place":"b","links":{"to":7}})", u"\"to\" in \"links\" must be a text or a list."_s},
        {R"({"lamp":"a","place":"b","links":{"to":["x",{}]}})", u"Entry 2 of \"to\" must be a text."_s},
        {R"({"lamp":"a","place":"b","links":{"to":[null]}})", u"Entry 1 of \"to\" must be a text."_s},
        {R"({"lamp":"a","place":"b","steps":[{"at":1},{"note":"n"}]})",
         u"Entry 2 of \"steps\" needs \"at\"."_s},
        {R"({"lamp":"a","place":"b","steps":[{"at":1,"note":2}]})", u"\"note\" must be a text."_s},
    };
    for (const Case& sample : cases) {
        EXPECT_EQ(ArgumentRules(spec, u"lamp"_s).check(json(sample.arguments)).message(), sample.message)
            << sample.arguments;
    }
}

TEST(ArgumentCheckTest, leavesToTheHandlerWhatItRefusesItself)
{
    const McpToolSpec spec{
        u"light_lamp"_s,
        {},
        makeObjectSchema(
            {{u"mode"_s, choiceProperty({}, {u"steady"_s, u"blink"_s}, Default::None)},
             {u"name"_s, textProperty({})}},
            {u"mode"_s, u"name"_s})};
    EXPECT_FALSE(ArgumentRules(spec, {}).check(json(R"({"mode":"dark","name":"a"})")));
    EXPECT_TRUE(ArgumentRules(spec, {}, {u"mode"_s, u"name"_s}).check(json(R"({"mode":"dark"})")));
    for (const char* const arguments : {"{}", R"({"mode":7})"}) {
        EXPECT_EQ(
            ArgumentRules(spec, {}, {u"mode"_s, u"name"_s}).check(json(arguments)).message(),
            u"light_lamp needs \"mode\"."_s);
    }
}

TEST(ArgumentCheckTest, listsWhatIsNeeded)
{
    EXPECT_EQ(enumerated({u"a"_s}, u"and"_s), u"a"_s);
    EXPECT_EQ(enumerated({u"a"_s, u"b"_s}, u"and"_s), u"a and b"_s);
    EXPECT_EQ(enumerated({u"a"_s, u"b"_s, u"c"_s}, u"or"_s), u"a, b, or c"_s);
}

TEST(ToolArgumentsTest, readsWhatIsThereAndNothingElse)
{
    const ToolArguments arguments(json(
        R"({"text":"t","null":null,"seven":7,"half":0.5,"large":9007199254740993,"yes":true,"list":["a",1,null],
            "records":[{"text":"r"},3],"map":{"B":1.25},"rows":[["a",2],"x"]})"));
    EXPECT_EQ(arguments.text(u"text"), u"t"_s);
    EXPECT_EQ(arguments.text(u"null", u"d"_s), u"d"_s);
    EXPECT_EQ(arguments.text(u"list", u"d"_s), u"d"_s);
    EXPECT_EQ(arguments.givenText(u"absent"), std::nullopt);
    EXPECT_EQ(arguments.givenText(u"null"), QString());
    EXPECT_EQ(arguments.integer(u"large"), 9007199254740993);
    EXPECT_EQ(arguments.integer(u"half"), std::nullopt);
    EXPECT_EQ(arguments.integer(u"seven", 1, 0, 5), 5);
    EXPECT_EQ(arguments.integer(u"absent", 1, 2, 5), 2);
    EXPECT_EQ(arguments.number(u"half"), 0.5);
    EXPECT_EQ(arguments.number(u"text"), std::nullopt);
    EXPECT_TRUE(arguments.boolean(u"yes"));
    EXPECT_FALSE(arguments.boolean(u"text"));
    EXPECT_EQ(arguments.givenBoolean(u"null"), std::nullopt);
    EXPECT_EQ(arguments.textList(u"list"), (QStringList{u"a"_s, u"1"_s, QString()}));
    EXPECT_EQ(arguments.givenTextList(u"null"), QStringList());
    EXPECT_EQ(arguments.givenTextList(u"absent"), std::nullopt);
    ASSERT_EQ(arguments.records(u"records").size(), 2u);
    EXPECT_EQ(arguments.records(u"records")[0].text(u"text"), u"r"_s);
    EXPECT_EQ(arguments.record(u"map").text(u"B"), u"1.25"_s);
    EXPECT_EQ(arguments.textRows(u"rows"), (std::vector<QStringList>{{u"a"_s, u"2"_s}, {}}));
}

TEST(DisplayTest, shortensAfterBlanksAreCollapsed)
{
    EXPECT_EQ(shortenForDisplay(QString(300, u'x')), QString(300, u'x'));
    EXPECT_EQ(shortenForDisplay(QString(301, u'x')), QString(300, u'x') + u"..."_s);
    EXPECT_EQ(shortenForDisplay(u"  a \n\t b  "_s), u"a b"_s);
    EXPECT_EQ(shortenForDisplay(QString(299, u'x') + u" yy"_s), QString(299, u'x') + u"..."_s);
    EXPECT_EQ(shortenForDisplay(u"ab\U0001F600c"_s, 3), u"ab..."_s);

    ValueDisplay brief(Shortening::Long);
    EXPECT_EQ(brief.shown(QString(300, u'x')), QString(300, u'x'));
    EXPECT_EQ(brief.note(u"get_lamp"_s), QString());
    static_cast<void>(brief.shown(QString(301, u'x')));
    EXPECT_TRUE(brief.note(u"get_lamp"_s)
                    .startsWith(u"\n\nNOTE: one or more field values above were shortened for brevity. Call "
                                "get_lamp again"));
    ValueDisplay full(Shortening::None);
    EXPECT_EQ(full.shown(QString(301, u'x')).size(), 301);
    EXPECT_EQ(full.note(u"get_lamp"_s), QString());
}

TEST(DisplayTest, datesReadBackAsTheyAreWritten)
{
    core::project::Project project;
    const auto expectRoundTrips = [&project] {
        for (const qint64 instant : std::initializer_list<qint64>{-5'000'000'000, -1, 0, 1, 1'000'000'007}) {
            const auto read = readDate(project, dateText(project, instant));
            EXPECT_TRUE(read) << read.message().toStdString();
            EXPECT_EQ(read ? read.value() : 0, instant) << dateText(project, instant).toStdString();
        }
    };
    expectRoundTrips();
    EXPECT_FALSE(dateText(project, 0).contains(u"[year"));
    core::calendar::Calendar calendar = project.calendar();
    calendar.setEras({{u"Before Fall"_s, 1, true}, {u"After, Year of Fall"_s, 500, false}});
    project.setCalendar(calendar);
    expectRoundTrips();
    EXPECT_TRUE(dateText(project, 0).endsWith(u" [year 1]"));
    EXPECT_FALSE(readDate(project, u"the day before %1"_s));
}

} // namespace tw::app::mcp
