#include "mcp/server/ProtocolServer.h"

#include "mcp/ServerFixture.h"

#include <QMap>

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;

using ProtocolServerTest = ServerFixture;

TEST_F(ProtocolServerTest, agreesOnAVersion)
{
    const struct
    {
        const char* wanted;
        const char* agreed;
    } cases[] = {
        {"2025-11-25", "2025-11-25"}, {"2025-06-18", "2025-06-18"}, {"2025-03-26", "2025-03-26"},
        {"2024-11-05", "2024-11-05"}, {"2024-10-07", "2025-11-25"}, {"2099-01-01", "2025-11-25"},
    };
    for (const auto& sample : cases) {
        const QJsonObject result = begin(sample.wanted);
        EXPECT_EQ(result.value(u"protocolVersion").toString(), QLatin1String(sample.agreed));
        EXPECT_EQ(result.value(u"serverInfo").toObject().value(u"name"), u"vellory"_s);
        EXPECT_TRUE(result.value(u"capabilities").toObject().contains(u"tools"));
        EXPECT_FALSE(result.contains(u"resultType")) << "a key of the other generation";
    }
}

TEST_F(ProtocolServerTest, theStatelessGenerationSaysEverythingWithEachRequest)
{
    const QJsonObject discovered = result(stateless("server/discover"));
    EXPECT_EQ(discovered.value(u"supportedVersions").toArray().first(), u"2026-07-28"_s);
    EXPECT_EQ(discovered.value(u"supportedVersions").toArray().size(), 5);

    const QJsonObject tools = result(stateless("tools/list"));
    EXPECT_EQ(tools.value(u"resultType"), u"complete"_s);
    EXPECT_EQ(tools.value(u"cacheScope"), u"public"_s);
    EXPECT_GT(tools.value(u"ttlMs").toInteger(), 0);
    EXPECT_EQ(
        tools.value(u"_meta")
            .toObject()
            .value(u"io.modelcontextprotocol/serverInfo")
            .toObject()
            .value(u"version"),
        u"1.0"_s);
    EXPECT_EQ(result(stateless("resources/list")).value(u"ttlMs"), 0);
    EXPECT_FALSE(result(stateless("prompts/get", R"("name":"continuity_review")")).contains(u"ttlMs"));

    const QJsonObject missing = error(stateless("resources/read", R"("uri":"vellory://document/x")"));
    EXPECT_EQ(missing.value(u"code"), -32602);
    EXPECT_EQ(missing.value(u"data").toObject().value(u"uri"), u"vellory://document/x"_s);

    const char* const meta = R"({"jsonrpc":"2.0","id":1,"method":"tools/list","params":{"_meta":%1}})";
    const struct
    {
        const char* meta;
        int code;
    } broken[] = {
        {R"({"io.modelcontextprotocol/protocolVersion":"2026-07-28"})", -32602},
        {R"({"io.modelcontextprotocol/protocolVersion":3})", -32602},
        {R"({"io.modelcontextprotocol/protocolVersion":"2026-07-28","io.modelcontextprotocol/clientCapabilities":[]})",
         -32602},
        {R"({"io.modelcontextprotocol/protocolVersion":"2027-01-01","io.modelcontextprotocol/clientCapabilities":{}})",
         -32022},
    };
    for (const auto& sample : broken)
        EXPECT_EQ(error(ask(QByteArray(meta).replace("%1", sample.meta))).value(u"code"), sample.code)
            << sample.meta;
    const QJsonObject refused = error(ask(QByteArray(meta).replace("%1", broken[3].meta)));
    EXPECT_EQ(refused.value(u"data").toObject().value(u"supported").toArray().first(), u"2026-07-28"_s);
    EXPECT_EQ(refused.value(u"data").toObject().value(u"requested"), u"2027-01-01"_s);
    EXPECT_EQ(error(ask(R"({"jsonrpc":"2.0","id":1,"method":"server/discover"})")).value(u"code"), -32602);
}

TEST_F(ProtocolServerTest, listsToolsWithTitlesAndHints)
{
    begin("2025-11-25");
    const QByteArray first = answerTo(R"({"jsonrpc":"2.0","id":1,"method":"tools/list"})");
    EXPECT_EQ(first, answerTo(R"({"jsonrpc":"2.0","id":1,"method":"tools/list"})"));
    QStringList names;
    for (const QJsonValue& value : result(parse(first)).value(u"tools").toArray()) {
        const QJsonObject tool = value.toObject();
        names.append(tool.value(u"name").toString());
        EXPECT_FALSE(tool.value(u"title").toString().isEmpty());
        EXPECT_EQ(tool.value(u"inputSchema").toObject().value(u"type"), u"object"_s);
        for (const QString& hint :
             {u"readOnlyHint"_s, u"destructiveHint"_s, u"idempotentHint"_s, u"openWorldHint"_s})
            EXPECT_TRUE(tool.value(u"annotations").toObject().value(hint).isBool())
                << names.last().toStdString();
    }
    EXPECT_EQ(names.first(), u"save_project"_s);
    EXPECT_TRUE(names.contains(u"manage_variants"_s));
}

TEST_F(ProtocolServerTest, schemasListWhatMayBeChosen)
{
    const QMap<QString, QString> choices{
        {u"search"_s, u"type"_s},          {u"delete_object"_s, u"type"_s},
        {u"set_visibility"_s, u"type"_s},  {u"set_ai_exclusion"_s, u"type"_s},
        {u"add_comment"_s, u"type"_s},     {u"list_comments"_s, u"type"_s},
        {u"add_field"_s, u"type"_s},       {u"entity_property"_s, u"type"_s},
        {u"convert_field"_s, u"type"_s},   {u"create_document"_s, u"kind"_s},
        {u"update_document"_s, u"kind"_s},
    };
    qsizetype found = 0;
    for (const QJsonValue& tool : catalogue->listing()) {
        const QString name = tool[u"name"].toString();
        const QJsonValue schema = tool[u"inputSchema"];
        if (choices.contains(name)) {
            ++found;
            EXPECT_FALSE(schema[u"properties"][choices.value(name)][u"enum"].toArray().isEmpty())
                << name.toStdString();
        }
        if (name == u"create_category") {
            EXPECT_TRUE(schema[u"required"].toArray().contains(u"name"_s));
        }
    }
    EXPECT_EQ(found, choices.size());
}

TEST_F(ProtocolServerTest, callsTools)
{
    begin("2025-11-25");
    const QJsonObject created = result(call("create_document", R"({"title":"Dawn","body":"one"})"));
    EXPECT_EQ(created.value(u"isError"), false);
    EXPECT_EQ(textOf(created), u"Created document 'Dawn'."_s);
    const QJsonObject failed = result(call("get_document", R"({"title":"None"})"));
    EXPECT_EQ(failed.value(u"isError"), true);
    EXPECT_EQ(textOf(failed), u"No document named 'None' exists."_s);
    EXPECT_EQ(
        textOf(result(ask(R"({"jsonrpc":"2.0","id":1,"method":"tools/call",
                                    "params":{"name":"get_recent_changes","arguments":null}})"))),
        u"Created document 'Dawn'."_s);
    EXPECT_EQ(timesRefreshed, 3);

    const QJsonObject unknown = error(call("make_coffee", "{}"));
    EXPECT_EQ(unknown.value(u"code"), -32602);
    EXPECT_EQ(unknown.value(u"message"), u"Unknown tool: make_coffee"_s);
    EXPECT_EQ(error(call("get_document", "[1]")).value(u"code"), -32602);
    EXPECT_EQ(
        error(ask(R"({"jsonrpc":"2.0","id":1,"method":"tools/call","params":{"name":3}})")).value(u"code"),
        -32602);
}

TEST_F(ProtocolServerTest, theNextStepFollowsFailuresOfChangingTools)
{
    begin("2025-11-25");
    nextStep = u"Do this."_s;
    EXPECT_EQ(textOf(result(call("undo_last", "{}"))), u"Nothing to undo. Do this."_s);
    EXPECT_EQ(textOf(result(call("save_project", "{}"))), u"Project saved."_s);
    EXPECT_EQ(
        textOf(result(call("get_document", R"({"title":"None"})"))), u"No document named 'None' exists."_s);
}

TEST_F(ProtocolServerTest, toolsMaySayAnything)
{
    const QString texts[] = {
        u"\"quoted\" \\ / <b>"_s, u"\b\f\n\r\t\u0001\u001f\u007f"_s, u"Dämmerung \u2028 \U0001F600"_s,
        u"half a pair "_s + QChar(0xd83d), QChar(0xde00) + u" and the other"_s};
    for (const QString& text : texts) {
        const QJsonObject title{{u"title"_s, text}};
        const QByteArray answer = answerTo(
            R"({"jsonrpc":"2.0","id":1,"method":"tools/call","params":{"name":"get_document","arguments":)" +
            QJsonDocument(title).toJson(QJsonDocument::Compact) + "}}");
        EXPECT_FALSE(answer.contains('\n'));
        EXPECT_EQ(textOf(result(parse(answer))), u"No document named '%1' exists."_s.arg(text));
    }
}

TEST_F(ProtocolServerTest, whateverComesIsAnsweredOrPassedOver)
{
    const struct
    {
        QByteArray line;
        /** 0 for a result, 1 for no answer at all. */
        int code;
        QJsonValue id;
    } cases[] = {
        {R"({"jsonrpc":"2.0","id":"a","method":"ping"})", 0, u"a"_s},
        {R"({"jsonrpc":"2.0","id":-7,"method":"ping","params":{}})", 0, -7},
        {R"({"jsonrpc":"2.0","id":0,"method":"ping"})", 0, 0},
        {R"({"jsonrpc":"2.0","id":-1.5,"method":"ping"})", 0, -1.5},
        {R"({"jsonrpc":"2.0","id":9007199254740993,"method":"ping"})", 0, qint64{9007199254740993}},
        {R"({"jsonrpc":"2.0","id":"\"ä\\\n","method":"ping"})", 0, u"\"ä\\\n"_s},
        {R"({"jsonrpc":"2.0","method":"ping"})", 1, {}},
        {R"({"jsonrpc":"2.0","method":"notifications/initialized"})", 1, {}},
        {R"({"jsonrpc":"2.0","method":"notifications/unheard_of","params":[1]})", 1, {}},
        {R"({"jsonrpc":"2.0","id":1,"result":{}})", 1, {}},
        {R"({"jsonrpc":"2.0","id":1,"error":{"code":1,"message":"x"}})", 1, {}},
        {R"({"jsonrpc":"2.0","id":1,"method":"unheard/of"})", -32601, 1},
        {R"({"jsonrpc":"2.0","id":1,"method":"ping","params":[1]})", -32602, 1},
        {R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{}})", -32602, 1},
        {R"({"jsonrpc":"2.0","id":1,"method":"prompts/get","params":{"name":"unheard_of"}})", -32602, 1},
        {R"({"jsonrpc":"2.0","id":1,"method":"prompts/get","params":{"name":"chapter_summary"}})", -32602, 1},
        {R"({"jsonrpc":"2.0","id":1,"method":"resources/list","params":{"cursor":"x"}})", -32602, 1},
        {R"({"jsonrpc":"2.0","id":1,"method":"resources/read","params":{"uri":"file:///etc/passwd"}})",
         -32002, 1},
        {R"({"jsonrpc":"2.0","id":1,"method":5})", -32600, 1},
        {R"({"jsonrpc":"1.0","id":1,"method":"ping"})", -32600, 1},
        {R"({"jsonrpc":"2.0","id":null,"method":"ping"})", -32600, QJsonValue::Null},
        {R"({"jsonrpc":"2.0","id":{"a":1},"method":"ping"})", -32600, QJsonValue::Null},
        {R"({"jsonrpc":"2.0","id":true,"method":"ping"})", -32600, QJsonValue::Null},
        {R"({})", -32600, QJsonValue::Null},
        {R"([])", -32600, QJsonValue::Null},
        {R"([{"jsonrpc":"2.0","id":1,"method":"ping"}])", -32600, QJsonValue::Null},
        {"{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"p\xff\"}", -32700, QJsonValue::Null},
        {"nonsense", -32700, QJsonValue::Null},
        {QByteArray(100'000, '['), -32700, QJsonValue::Null},
    };
    for (const auto& sample : cases) {
        const QByteArray line = answerTo(sample.line);
        EXPECT_FALSE(line.contains('\n'));
        if (sample.code == 1) {
            EXPECT_EQ(line, QByteArray()) << sample.line.toStdString();
            continue;
        }
        const QJsonObject answer = parse(line);
        EXPECT_EQ(answer.value(u"id"), sample.id) << line.toStdString();
        EXPECT_EQ(answer.value(u"error").toObject().value(u"code").toInt(), sample.code)
            << sample.line.first(std::min<qsizetype>(80, sample.line.size())).toStdString();
        EXPECT_EQ(answer.contains(u"result"), sample.code == 0);
    }
}

TEST_F(ProtocolServerTest, batchesBelongToTheOldVersions)
{
    begin("2025-03-26");
    const QByteArray batch =
        R"([{"jsonrpc":"2.0","id":1,"method":"ping"},{"jsonrpc":"2.0","method":"notifications/initialized"},3,
            {"jsonrpc":"2.0","id":"b","method":"unheard/of"}])";
    const QJsonArray answers = QJsonDocument::fromJson(answerTo(batch)).array();
    ASSERT_EQ(answers.size(), 3);
    EXPECT_EQ(answers[0].toObject().value(u"id"), 1);
    EXPECT_EQ(error(answers[1].toObject()).value(u"code"), -32600);
    EXPECT_EQ(answers[2].toObject().value(u"id"), u"b"_s);
    EXPECT_EQ(answerTo(R"([{"jsonrpc":"2.0","method":"notifications/initialized"}])"), QByteArray());
    EXPECT_EQ(error(ask("[]")).value(u"code"), -32600);
    begin("2025-06-18");
    EXPECT_EQ(error(ask(batch)).value(u"code"), -32600);
}

TEST_F(ProtocolServerTest, documentsAreResourcesUnlessExcluded)
{
    begin("2025-11-25");
    static_cast<void>(call("create_document", R"({"title":"Dawn","body":"one"})"));
    static_cast<void>(call("create_document", R"({"title":"Hidden","body":"one"})"));
    auto& project = workspace->projectForEdit();
    const core::ContentId hidden = project.names().named(u"Hidden").front();
    project.findForEdit(hidden)->setAiExcluded(true);

    const QJsonArray list =
        result(ask(R"({"jsonrpc":"2.0","id":1,"method":"resources/list"})")).value(u"resources").toArray();
    ASSERT_EQ(list.size(), 1);
    EXPECT_EQ(list[0].toObject().value(u"name"), u"Dawn"_s);
    const QJsonObject read = result(readResource(list[0].toObject().value(u"uri").toString()));
    const QJsonObject contents = read.value(u"contents").toArray().first().toObject();
    EXPECT_TRUE(contents.value(u"text").toString().endsWith(u"Body:\n\none"_s));
    EXPECT_EQ(contents.value(u"mimeType"), u"text/markdown"_s);
    EXPECT_EQ(error(readResource(u"vellory://document/"_s + hidden.toString())).value(u"code"), -32002);
}

TEST_F(ProtocolServerTest, manyResourcesComeInPages)
{
    using core::document::Document;
    for (int count = 0; count < 1203; ++count) {
        workspace->projectForEdit().add(std::make_unique<Document>(
            core::ContentId::create(), core::document::DocumentKind::Prose, QString::number(count)));
    }
    std::set<QString> uris;
    QString cursor;
    int pages = 0;
    do {
        const QByteArray params = cursor.isEmpty() ? "{}" : "{\"cursor\":\"" + cursor.toUtf8() + "\"}";
        const QJsonObject page =
            result(ask(R"({"jsonrpc":"2.0","id":1,"method":"resources/list","params":)" + params + '}'));
        for (const QJsonValue& resource : page.value(u"resources").toArray())
            EXPECT_TRUE(uris.insert(resource.toObject().value(u"uri").toString()).second);
        cursor = page.value(u"nextCursor").toString();
        ++pages;
    } while (!cursor.isEmpty() && pages < 10);
    EXPECT_EQ(pages, 3);
    EXPECT_EQ(uris.size(), 1203u);
}

TEST_F(ProtocolServerTest, promptsAskForWhatTheyNeed)
{
    const QJsonArray prompts =
        result(ask(R"({"jsonrpc":"2.0","id":1,"method":"prompts/list"})")).value(u"prompts").toArray();
    ASSERT_EQ(prompts.size(), 3);
    const QJsonObject prompt = result(ask(
        R"({"jsonrpc":"2.0","id":1,"method":"prompts/get",
            "params":{"name":"name_brainstorm","arguments":{"subject":"a %2 town","style":"harsh"}}})"));
    const QString text = prompt.value(u"messages")
                             .toArray()
                             .first()
                             .toObject()
                             .value(u"content")
                             .toObject()
                             .value(u"text")
                             .toString();
    EXPECT_TRUE(text.startsWith(
        u"Suggest twelve names for this: a %2 town. The names should feel like this: harsh."_s));
}

TEST_F(ProtocolServerTest, onlyTheChosenToolsAreOffered)
{
    const auto namesWith = [this](const ToolChoice& choice) {
        const auto chosen = ToolCatalogue::create(*workspace, log, choice, u"1.0"_s);
        QStringList names;
        if (chosen) {
            for (const auto& tool : chosen.value().server().tools())
                names.append(tool.name);
        }
        return chosen ? names.join(u' ') : chosen.message();
    };
    EXPECT_EQ(namesWith({true, {u"core"_s}}), u"get_recent_changes"_s);
    EXPECT_TRUE(
        namesWith({false, {u"document"_s}}).startsWith(u"get_manuscript_tree get_document create_document"));
    EXPECT_FALSE(namesWith({true, {}}).contains(u"update_document"));
    EXPECT_TRUE(namesWith({true, {u"x"_s}})
                    .startsWith(u"There is no family of tools called \"x\". Choose from: core,"));
}

} // namespace tw::mcp::server
