#include "app/mcp/ToolFamilies.h"
#include "app/mcp/ToolFixture.h"
#include "core/document/Document.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::BodyFormat;
using core::document::Document;
using core::document::DocumentKind;
using core::document::Footnote;

class DocumentPartsTest : public ToolFixture
{
protected:
    DocumentPartsTest()
        : ToolFixture({registerMcpDocumentTools})
    {}

    Document& addDocument(const QString& title, const QString& body, const ContentId& parent = {})
    {
        Document& document = add<Document>(DocumentKind::Prose, title);
        document.setBody({body, BodyFormat::Markdown});
        document.setParentId(parent);
        document.touch();
        EXPECT_TRUE(workspace.save());
        return document;
    }
};

TEST_F(DocumentPartsTest, findListsUnlessThereIsAReplacement)
{
    addDocument(u"Dawn"_s, u"The tide, {.tw u} the **ti**de. tides [^tide]"_s);
    for (const char* arguments :
         {R"({"find":"tide"})", R"({"find":"tide","replace":null})",
          R"({"find":"tide","replace":"x","dry_run":true})",
          R"({"find":"tide","replace":"x","dry_run":true,"scope":"document","scope_id":"dawn"})"}) {
        const McpToolResult result = call("find_replace", arguments);
        EXPECT_TRUE(result.ok);
        EXPECT_TRUE(result.text.startsWith(u"3 match(es) in 1 document(s).\n\n'Dawn': 3\n- The [[tide]], "_s))
            << result.text.toStdString();
    }
    EXPECT_EQ(
        call("find_replace", R"({"find":"ebb","replace":"x"})").text, u"0 match(es) in 0 document(s)."_s);
    EXPECT_EQ(call("find_replace", R"({"find":""})").text, u"find_replace needs a non-empty \"find\"."_s);
    EXPECT_TRUE(call("find_replace", R"({"find":"(","regex":true})")
                    .text.startsWith(u"The regular expression is not valid: "_s));
    EXPECT_EQ(
        call("find_replace", R"({"find":"a","scope":"subtree"})").text,
        u"find_replace needs \"scope_id\" when \"scope\" is document or subtree."_s);
    expectUntouched(0);
}

TEST_F(DocumentPartsTest, replacesEverywhereAsOneStep)
{
    Document& part = addDocument(u"Part"_s, u"tide"_s);
    Document& dawn = addDocument(u"Dawn"_s, u"Tide and tides"_s, part.id());
    Document& other = addDocument(u"Other"_s, u"tide"_s);
    Document& lockedOne = addDocument(u"Locked"_s, u"tide"_s);
    lockedOne.setLocked(true);
    Document& hidden = addDocument(u"Hidden"_s, u"tide"_s);
    hidden.setAiExcluded(true);
    dawn.setVariants({{{u"dark"_s, u"tide"_s, BodyFormat::Markdown}}, u"dark"_s});
    ASSERT_TRUE(workspace.save());

    EXPECT_EQ(
        call("find_replace", R"({"find":"tide","replace":"ebb","whole_word":true})").text,
        u"Replaced 3 match(es) in 3 document(s).\n\nLeft as they are because they are locked: 'Locked'.\n\n"
        u"1 document(s) excluded from AI were not searched."_s);
    EXPECT_EQ(steps(), 1);
    EXPECT_EQ(workspace.history().undoText(), u"MCP: find_replace"_s);
    EXPECT_EQ(dawn.variants().list[0].body, u"ebb"_s) << "the text in use";
    EXPECT_EQ(dawn.body().text, u"Tide and tides"_s);
    EXPECT_EQ(lockedOne.body().text, u"tide"_s);
    EXPECT_EQ(hidden.body().text, u"tide"_s);
    workspace.undoStack().undo();
    EXPECT_EQ(other.body().text, u"tide"_s);

    const QByteArray scope =
        R"json({"find":"(t)(ide)","replace":"\\2\\1","regex":true,"scope":"subtree","scope_id":"%1"})json"_ba;
    EXPECT_TRUE(call("find_replace", QByteArray(scope).replace("%1", part.id().toString().toUtf8())).ok);
    EXPECT_EQ(part.body().text, u"idet"_s);
    EXPECT_EQ(other.body().text, u"tide"_s);
    EXPECT_TRUE(call("find_replace", R"({"find":"idet","replace":""})").ok);
    EXPECT_EQ(part.body().text, QString());
    EXPECT_EQ(
        call("find_replace", R"({"find":"tide","replace":"tide","case_sensitive":true})")
            .text.section(u'\n', 0, 0),
        u"Every match already reads that way; nothing changed."_s);
}

TEST_F(DocumentPartsTest, listsFootnotesAsReadersCountThem)
{
    EXPECT_EQ(
        call("list_footnotes", R"({"title":"x"})"),
        McpToolResult::failure(u"No document named 'x' exists."_s));
    Document& document = addDocument(
        u"Dawn"_s,
        u"One[^b] two[^a] again[^b].\n\n| x |\n|---|\n| y[^gone] |\n\n[^inline]: here\n\nthree[^inline]"_s);
    document.setFootnotes(
        {{u"a"_s, u"First"_s, false}, {u"b"_s, u"Second %1"_s, true}, {u"c"_s, u"Loose"_s, false}});
    EXPECT_EQ(
        call("list_footnotes", R"({"title":"Dawn"})").text,
        u"1. [^b] (endnote) Second %1\n2. [^a] First\n3. [^gone] has no definition; write one with "
        u"add_footnote.\n"
        "4. [^inline] is defined in the body itself; edit it there with update_document.\n\n"
        "Not referenced in the body:\n- [^c] Loose"_s);
    addDocument(u"Plain"_s, u"`[^1]`"_s);
    EXPECT_EQ(call("list_footnotes", R"({"title":"Plain"})").text, u"There are no footnotes in 'Plain'."_s);
}

TEST_F(DocumentPartsTest, addsEditsAndRemovesFootnotes)
{
    Document& document = addDocument(u"Dawn"_s, u"One[^1]."_s);
    document.setFootnotes({{u"2"_s, u"Two"_s, false}});
    ASSERT_TRUE(workspace.save());
    EXPECT_EQ(
        call("add_footnote", R"({"document":"Dawn","text":"Three","endnote":true})").text,
        u"Added endnote '3' to 'Dawn'; reference it as [^3]."_s);
    EXPECT_EQ(
        call("add_footnote", R"({"document":"Dawn","text":"One","footnote_id":"1"})").text,
        u"Added footnote '1' to 'Dawn'; reference it as [^1]."_s);
    EXPECT_EQ(
        call("add_footnote", R"({"document":"Dawn","text":"x","footnote_id":"2"})").text,
        u"A footnote named '2' already exists."_s);
    EXPECT_FALSE(call("add_footnote", R"({"document":"Dawn","text":"x","footnote_id":"a]b"})").ok);
    EXPECT_FALSE(call("add_footnote", R"({"document":"Dawn","text":" "})").ok);
    EXPECT_EQ(steps(), 2);

    EXPECT_EQ(
        call("update_footnote", R"({"document":"Dawn","footnote_id":"3","text":"Drei"})").text,
        u"Updated footnote '3'."_s);
    EXPECT_EQ(document.footnotes()[1], (Footnote{u"3"_s, u"Drei"_s, true}));
    EXPECT_EQ(
        call("update_footnote", R"({"document":"Dawn","footnote_id":"3","endnote":true})").text,
        u"Footnote '3' already matches; nothing changed."_s);
    EXPECT_EQ(
        call("update_footnote", R"({"document":"Dawn","footnote_id":"9","text":"x"})").text,
        u"No footnote '9' in 'Dawn'."_s);
    EXPECT_FALSE(call("update_footnote", R"({"document":"Dawn","footnote_id":"3","text":""})").ok);

    EXPECT_EQ(
        call("remove_footnote", R"({"document":"Dawn","footnote_id":"2"})").text,
        u"Removed footnote '2' from 'Dawn'."_s);
    EXPECT_EQ(
        call("remove_footnote", R"({"document":"Dawn","footnote_id":"1"})").text,
        u"Removed footnote '1' from 'Dawn'. The body still refers to it as [^1]; take that out with update_document."_s);
    EXPECT_EQ(document.footnotes().size(), 1u);
    EXPECT_EQ(steps(), 5);
}

TEST_F(DocumentPartsTest, keepsVersionsOfTheTextInUse)
{
    Document& document = addDocument(u"Dawn"_s, u"one two"_s);
    EXPECT_EQ(
        call("get_document_versions", R"({"title":"Dawn"})").text,
        u"There are no saved versions of 'Dawn'."_s);
    EXPECT_EQ(
        call("snapshot_document_version", R"({"title":"Dawn","label":"  "})").text,
        u"A non-empty \"label\" is required."_s);
    EXPECT_EQ(
        call("snapshot_document_version", R"({"title":"Dawn","label":"First %1"})").text,
        u"Saved version 'First %1' of 'Dawn'."_s);
    EXPECT_TRUE(call("snapshot_document_version", R"({"title":"Dawn","label":"First %1"})")
                    .text.endsWith(u"nothing changed."_s));
    ASSERT_EQ(document.versions().size(), 1u);
    EXPECT_EQ(document.versions()[0].body, u"one two"_s);
    EXPECT_EQ(
        call("get_document_versions", R"({"title":"Dawn"})").text,
        u"1. 'First %1' -- "_s + document.versions()[0].createdAt + u" (2 words)"_s);
}

TEST_F(DocumentPartsTest, managesVariants)
{
    Document& document = addDocument(u"Dawn"_s, u"one"_s);
    const struct
    {
        const char* arguments;
        bool isOk;
        QString text;
    } calls[] = {
        {R"({"document":"Dawn"})", true, u"- main text (1 words) -- in use"_s},
        {R"({"document":"Dawn","action":"create","name":"Dark"})", true,
         u"Created variant 'Dark' of 'Dawn'. It is not in use yet; switch to it with \"action\": \"switch\"."_s},
        {R"({"document":"Dawn","action":"create","name":"dark"})", false,
         u"A variant named 'dark' already exists."_s},
        {R"({"document":"Dawn","action":"create"})", false, u"manage_variants needs \"name\"."_s},
        {R"({"document":"Dawn","action":"create","name":"Short","body":"two words"})", true, {}},
        {R"({"document":"Dawn","action":"switch","name":"DARK"})", true,
         u"Switched 'Dawn' to variant 'Dark'."_s},
        {R"({"document":"Dawn","action":"switch","name":"Dark"})", true,
         u"Document 'Dawn' already matches; nothing changed."_s},
        {R"({"document":"Dawn","action":"rename","name":"Dark","new_name":"short"})", false,
         u"A variant named 'short' already exists."_s},
        {R"({"document":"Dawn","action":"rename","name":"Dark"})", false,
         u"manage_variants needs \"name\" and \"new_name\"."_s},
        {R"({"document":"Dawn","action":"rename","name":"dark","new_name":"Night"})", true,
         u"Renamed variant 'Dark' to 'Night'."_s},
        {R"({"document":"Dawn","action":"list"})", true,
         u"- main text (1 words)\n- 'Night' (1 words) -- in use\n- 'Short' (2 words)"_s},
        {R"({"document":"Dawn","action":"delete","name":"Night"})", true,
         u"Removed variant 'Night' from 'Dawn'. The main text is in use again."_s},
        {R"({"document":"Dawn","action":"delete","name":"Night"})", false,
         u"No variant named 'Night' exists."_s},
        {R"({"document":"Dawn","action":"merge"})", false,
         u"Unknown \"action\" 'merge'; use list (default), create, switch, rename, or delete."_s},
    };
    for (const auto& sample : calls) {
        const McpToolResult result = call("manage_variants", sample.arguments);
        EXPECT_EQ(result.ok, sample.isOk) << sample.arguments;
        EXPECT_TRUE(sample.text.isEmpty() || result.text == sample.text) << result.text.toStdString();
    }
    EXPECT_EQ(document.variants().active, QString());
    EXPECT_EQ(document.variants().list.size(), 1u);
    EXPECT_EQ(steps(), 5);
}

} // namespace tw::app::mcp
