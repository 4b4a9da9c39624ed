#include "app/mcp/ToolFamilies.h"
#include "app/mcp/ToolFixture.h"
#include "core/document/Document.h"
#include "core/document/DocumentTree.h"
#include "core/document/markup/LegacyHtml.h"
#include "core/entity/Entity.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::BodyFormat;
using core::document::Document;
using core::document::DocumentKind;
using core::entity::Entity;

class DocumentToolsTest : public ToolFixture
{
protected:
    DocumentToolsTest()
        : ToolFixture({registerMcpDocumentTools})
    {}

    Document& addDocument(const QString& title, const QString& body = {}, const ContentId& parent = {})
    {
        Document& document = add<Document>(DocumentKind::Prose, title);
        document.setBody({body, BodyFormat::Markdown});
        document.setParentId(parent);
        document.setSortIndex(static_cast<qint32>(core::document::childDocuments(project(), parent).size()));
        save(document);
        return document;
    }

    void save(Document& document)
    {
        document.touch();
        EXPECT_TRUE(workspace.save());
    }

    const Document* named(const QString& title) const
    {
        const auto ids = project().names().named(title);
        return ids.empty() ? nullptr : project().findAs<Document>(ids.front());
    }

    QString childrenOf(const ContentId& parent) const
    {
        QStringList titles;
        for (const ContentId& id : core::document::childDocuments(project(), parent))
            titles.append(project().findAs<Document>(id)->title());
        return titles.join(u' ');
    }
};

TEST_F(DocumentToolsTest, theTreeShowsWhatMayBeSeenInReadingOrder)
{
    EXPECT_EQ(call("get_manuscript_tree").text, u"There are no documents in this project."_s);
    const Document& part = addDocument(u"Part %1"_s, u"one two"_s);
    addDocument(u"Dawn"_s, u"# Dawn\n\n[one]{.tw u} two three"_s, part.id()).setLocked(true);
    Document& secret = addDocument(u"Secret"_s, {}, part.id());
    secret.setAiExcluded(true);
    addDocument(u"Beneath"_s, {}, secret.id());
    addDocument(u"Alone"_s).setAiExcluded(true);
    const Document& first = addDocument(u"Twice"_s);
    const Document& second = addDocument(u"twice"_s);
    EXPECT_EQ(
        call("get_manuscript_tree").text, u"- Part %1 (prose, 2 words)\n"
                                          "  - Dawn (prose, 4 words) [locked]\n"
                                          "  - (a document excluded from AI)\n"
                                          "    - Beneath (prose, 0 words)\n"
                                          "- Twice (prose, 0 words) [id "_s +
                                              first.id().toString() + u"]\n- twice (prose, 0 words) [id "_s +
                                              second.id().toString() +
                                              u"]\n\n2 document(s) excluded from AI were omitted."_s);
}

TEST_F(DocumentToolsTest, aTreeAsDeepAsItIsLongIsRead)
{
    constexpr int length = 20'000;
    ContentId above;
    for (int index = 0; index < length; ++index) {
        auto document = std::make_unique<Document>(ContentId::create(), DocumentKind::Prose, u"Untitled"_s);
        document->setParentId(above);
        above = document->id();
        workspace.projectForEdit().add(std::move(document));
    }
    EXPECT_EQ(call("get_manuscript_tree").text.count(u"- Untitled (prose, 0 words) [id "_s), length);
}

TEST_F(DocumentToolsTest, readsADocumentWholeAndInPieces)
{
    Document& part = addDocument(u"Part"_s);
    part.setAiExcluded(true);
    Document& dawn = addDocument(u"Dawn"_s, u"0123456789"_s, part.id());
    dawn.setSynopsis(u"Marda leaves."_s);
    dawn.setPointOfView(u"marda"_s);
    dawn.setWordCountTarget(500);
    Entity& marda = add<Entity>(core::CategoryId(), u"Marda"_s);
    save(dawn);
    const QString text = call("get_document", R"({"title":" dawn "})").text;
    EXPECT_EQ(
        text, u"'Dawn' (prose, 1 words)\nUnder: (a document excluded from AI)\nPoint of view: marda\n"
              "Synopsis: Marda leaves.\nWord count target: 500\n\nBody:\n\n0123456789"_s);
    marda.setAiExcluded(true);
    EXPECT_TRUE(call("get_document", R"({"title":"Dawn"})").text.contains(u"(a character excluded from AI)"));

    const struct
    {
        const char* arguments;
        QString end;
    } pieces[] = {
        {R"({"title":"Dawn","limit":4})",
         u"Body, characters 0 to 4 of 10; pass \"offset\": 4 for what follows:\n\n0123"_s},
        {R"({"title":"Dawn","offset":7,"limit":99})", u"Body, characters 7 to 10 of 10:\n\n789"_s},
        {R"({"title":"Dawn","offset":99})", u"Body, characters 10 to 10 of 10:\n\n"_s},
        {R"({"title":"Dawn","offset":-5,"limit":0})", u"pass \"offset\": 1 for what follows:\n\n0"_s},
    };
    for (const auto& piece : pieces)
        EXPECT_TRUE(call("get_document", piece.arguments).text.endsWith(piece.end)) << piece.arguments;

    Document& smile = addDocument(u"Smile"_s, u"\U0001F600\U0001F601"_s);
    EXPECT_TRUE(
        call("get_document", R"({"title":"Smile","offset":1,"limit":1})").text.endsWith(u"\n\n\U0001F600"_s))
        << "no half characters";
    smile.setBody({u"<p>Old <b>text</b></p>"_s, BodyFormat::Html});
    EXPECT_TRUE(call("get_document", R"({"title":"Smile"})").text.endsWith(u"\n\nOld **text**"_s));
}

TEST_F(DocumentToolsTest, createsAtTheEndOfItsSiblings)
{
    const Document& part = addDocument(u"Part"_s);
    addDocument(u"Dawn"_s, {}, part.id());
    EXPECT_EQ(
        call(
            "create_document",
            R"({"title":" Dusk ","kind":"note","parent":"part","body":"Text","word_count_target":-3})"),
        McpToolResult::success(u"Created document 'Dusk'."_s));
    EXPECT_EQ(childrenOf(part.id()), u"Dawn Dusk"_s);
    EXPECT_EQ(named(u"Dusk"_s)->documentKind(), DocumentKind::Note);
    EXPECT_EQ(named(u"Dusk"_s)->wordCountTarget(), 0);
    EXPECT_EQ(workspace.history().undoText(), u"MCP: create_document"_s);
    EXPECT_EQ(log.entries.size(), 1);

    const struct
    {
        const char* arguments;
        QString message;
    } refused[] = {
        {R"({})", u"create_document needs \"title\"."_s},
        {R"({"title":" "})", u"A non-empty name is required."_s},
        {R"({"title":"DAWN"})", u"A document titled 'DAWN' already exists."_s},
        {R"({"title":"New","kind":"poem"})",
         u"Unknown document kind 'poem' (use prose, note, or screenplay)."_s},
        {R"({"title":"New","parent":"None"})", u"No document named 'None' exists."_s},
        {R"({"title":"New","body":3})", u"\"body\" must be a text."_s},
    };
    for (const auto& sample : refused) {
        EXPECT_EQ(call("create_document", sample.arguments), McpToolResult::failure(sample.message))
            << sample.arguments;
    }
    expectUntouched(1, 1);
}

TEST_F(DocumentToolsTest, changesOnlyWhatIsPassed)
{
    Document& dawn = addDocument(u"Dawn"_s, u"Body"_s);
    dawn.setSynopsis(u"Old"_s);
    dawn.setStatus(u"Draft"_s);
    save(dawn);
    addDocument(u"Dusk"_s);
    EXPECT_EQ(
        call(
            "update_document",
            R"({"title":"Dawn","synopsis":null,"new_title":"Sunrise","kind":"screenplay"})"),
        McpToolResult::success(u"Updated document 'Sunrise'."_s));
    EXPECT_EQ(dawn.synopsis(), QString());
    EXPECT_EQ(dawn.status(), u"Draft"_s);
    EXPECT_EQ(dawn.body().text, u"Body"_s);
    EXPECT_EQ(dawn.documentKind(), DocumentKind::Screenplay);
    EXPECT_EQ(steps(), 1);
    EXPECT_EQ(
        call("update_document", R"({"title":"Sunrise","status":"Draft","body":"Body","order":"first"})"),
        McpToolResult::success(u"Document 'Sunrise' already matches; nothing changed."_s));
    EXPECT_EQ(
        call("update_document", R"({"title":"Sunrise","status":"x","new_title":"dusk"})").text,
        u"A document titled 'dusk' already exists; renaming onto it would leave both unreachable by name."_s);
    EXPECT_FALSE(call("update_document", R"({"title":"Sunrise","status":"x","kind":"poem"})").ok);
    expectUntouched(1, 1);
    EXPECT_EQ(dawn.status(), u"Draft"_s);
    workspace.undoStack().undo();
    EXPECT_EQ(dawn.title(), u"Dawn"_s);
}

TEST_F(DocumentToolsTest, movesAmongSiblingsAndUnderOthers)
{
    const struct
    {
        const char* arguments;
        QString top;
        QString message;
    } cases[] = {
        {R"({"title":"C","order":"first"})", u"C A B D"_s, {}},
        {R"({"title":"A","order":"last"})", u"B C D A"_s, {}},
        {R"({"title":"D","index":1})", u"A D B C"_s, {}},
        {R"({"title":"A","index":99})", u"B C D A"_s, {}},
        {R"({"title":"A","after":"c"})", u"B C A D"_s, {}},
        {R"({"title":"D","before":"B"})", u"A D B C"_s, {}},
        {R"({"title":"B","after":"A"})", u"A B C D"_s, u"Document 'B' already matches; nothing changed."_s},
        {R"({"title":"Inner","parent":"","before":"B"})", u"A Inner B C D"_s, {}},
        {R"({"title":"D","parent":"A","index":0})", u"A B C"_s, {}},
        {R"({"title":"A","parent":"Inner"})", u"A B C D"_s,
         u"'A' cannot be moved under 'Inner' -- that would place the document inside its own subtree."_s},
        {R"({"title":"A","parent":"A"})", u"A B C D"_s,
         u"'A' cannot be moved under 'A' -- that would place the document inside its own subtree."_s},
        {R"({"title":"A","index":0,"before":"B"})", u"A B C D"_s,
         u"Pass at most one of \"order\", \"index\", \"before\", or \"after\"."_s},
        {R"({"title":"B","before":"Inner"})", u"A B C D"_s,
         u"'B' has no sibling titled 'Inner' there; pass \"parent\" to move it under another document."_s},
        {R"({"title":"B","before":"B"})", u"A B C D"_s,
         u"'B' has no sibling titled 'B' there; pass \"parent\" to move it under another document."_s},
    };
    const Document& a = addDocument(u"A"_s);
    for (const QString& title : {u"B"_s, u"C"_s, u"D"_s})
        addDocument(title);
    addDocument(u"Inner"_s, {}, a.id());
    for (const auto& sample : cases) {
        const McpToolResult result = call("update_document", sample.arguments);
        EXPECT_EQ(childrenOf({}), sample.top) << sample.arguments;
        EXPECT_TRUE(sample.message.isEmpty() ? result.ok : result.text == sample.message)
            << result.text.toStdString();
        EXPECT_LE(steps(), 1);
        workspace.undoStack().undo();
        EXPECT_TRUE(workspace.save());
    }
}

TEST_F(DocumentToolsTest, appendsInTheFormatOfTheBody)
{
    const struct
    {
        QString body;
        BodyFormat format;
        QString expected;
    } cases[] = {
        {{}, BodyFormat::Markdown, u"One *two*."_s},
        {u"\n"_s, BodyFormat::Markdown, u"One *two*."_s},
        {u"A"_s, BodyFormat::Markdown, u"A\n\nOne *two*."_s},
        {u"A\n"_s, BodyFormat::Markdown, u"A\n\nOne *two*."_s},
        {u"A\n\n"_s, BodyFormat::Markdown, u"A\n\nOne *two*."_s},
        {u"<p>A</p>"_s, BodyFormat::Html, u"A\n\nOne *two*."_s},
        {u"<html><body><p>A</p></BODY></html>"_s, BodyFormat::Html, u"A\n\nOne *two*."_s},
    };
    Document& document = addDocument(u"Dawn"_s);
    for (const auto& sample : cases) {
        document.setBody({sample.body, sample.format});
        save(document);
        EXPECT_EQ(
            call("append_to_document", R"({"title":"Dawn","text":"\n\nOne *two*.\n"})"),
            McpToolResult::success(u"Appended 2 word(s) to 'Dawn'."_s));
        EXPECT_EQ(document.body().format, sample.format);
        EXPECT_EQ(core::document::markup::markdownOf(document.body()), sample.expected);
    }
    EXPECT_FALSE(call("append_to_document", R"({"title":"Dawn","text":" \n "})").ok);
}

TEST_F(DocumentToolsTest, everyChangeOfALockedHiddenOrMountedDocumentIsRefused)
{
    addDocument(u"Locked"_s, u"text"_s).setLocked(true);
    addDocument(u"Hidden"_s, u"text"_s).setAiExcluded(true);
    mountLibrary(u"Library"_s, [](core::project::Project& library) {
        library.add(std::make_unique<Document>(ContentId::create(), DocumentKind::Prose, u"Mounted"_s));
    });
    const QString mark = u"From the mounted library 'Library'.\n"_s;
    EXPECT_EQ(
        call("get_document_versions", R"({"title":"Mounted"})").text,
        mark + u"There are no saved versions of 'Mounted'."_s);
    EXPECT_EQ(
        call("list_footnotes", R"({"title":"Mounted"})").text,
        mark + u"There are no footnotes in 'Mounted'."_s);
    EXPECT_EQ(
        call("manage_variants", R"({"document":"Mounted"})").text,
        mark + u"- main text (0 words) -- in use"_s);
    const char* const tools[] = {
        R"(update_document {"title":"%1","body":"x"})",
        R"(append_to_document {"title":"%1","text":"x"})",
        R"(find_replace {"find":"text","replace":"x","scope":"document","scope_id":"%1"})",
        R"(snapshot_document_version {"title":"%1","label":"x"})",
        R"(add_footnote {"document":"%1","text":"x"})",
        R"(update_footnote {"document":"%1","footnote_id":"1","text":"x"})",
        R"(remove_footnote {"document":"%1","footnote_id":"1"})",
        R"(manage_variants {"document":"%1","action":"create","name":"x"})",
    };
    const QString refusals[] = {
        u"Locked:'Locked' is locked. Only the person writing it can unlock it, from the app -- there is no tool for that."_s,
        u"Hidden:'Hidden' is excluded from AI and cannot be changed."_s,
        u"Mounted:'Mounted' lives in the mounted library 'Library'; this server edits only the open project. "
        u"Open the "
        "library as its own project to change it."_s,
    };
    for (const char* tool : tools) {
        for (const QString& refusal : refusals) {
            const QString name = refusal.section(u':', 0, 0);
            QByteArray line(tool);
            line.replace("%1", name.toUtf8());
            const qsizetype space = line.indexOf(' ');
            const McpToolResult result = call(line.first(space).constData(), line.sliced(space + 1));
            EXPECT_EQ(result, McpToolResult::failure(refusal.section(u':', 1))) << line.toStdString();
        }
    }
    expectUntouched(0);
    for (const char* tool : {"get_document", "get_document_versions", "list_footnotes"}) {
        EXPECT_TRUE(call(tool, R"({"title":"Locked"})").ok) << tool;
        EXPECT_TRUE(call(tool, R"({"title":"Mounted"})").ok) << tool;
        EXPECT_EQ(call(tool, R"({"title":"Hidden"})").text, u"No document named 'Hidden' exists."_s) << tool;
    }
    EXPECT_TRUE(
        call("get_document", R"({"title":"Mounted"})").text.contains(u"From the mounted library 'Library'."));
}

} // namespace tw::app::mcp
