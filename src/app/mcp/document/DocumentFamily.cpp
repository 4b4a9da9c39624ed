#include "app/mcp/ToolFamilies.h"
#include "app/mcp/document/DocumentEditTools.h"
#include "app/mcp/document/DocumentReadTools.h"
#include "app/mcp/document/FindReplaceTool.h"
#include "app/mcp/document/FootnoteTools.h"
#include "app/mcp/document/VersionTools.h"
#include "app/mcp/registry/Schema.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString titleDescription = u"The document's title."_s;
const QString documentDescription = u"The title of the document."_s;
const QString footnoteIdDescription = u"The footnote's id, as list_footnotes shows it: the label in [^id]."_s;

/** What create_document and update_document both take. */
QJsonObject planningProperties(Default kind)
{
    return {
        {u"body"_s, textProperty(u"The whole text as Markdown; paragraphs are parted by a blank line."_s)},
        {u"synopsis"_s, textProperty(u"What happens, in a few sentences."_s)},
        {u"status"_s, textProperty(u"The writer's own word for how far the text is, such as Draft."_s)},
        {u"point_of_view"_s, textProperty(u"Whose eyes the scene is seen through."_s)},
        {u"word_count_target"_s, integerProperty(u"Words aimed at; 0 for none."_s)},
        {u"kind"_s, choiceProperty(
                        u"prose (a chapter or scene), note, or screenplay."_s,
                        {u"prose"_s, u"note"_s, u"screenplay"_s}, kind)},
        {u"parent"_s, textProperty(u"The title of the document to stand under; empty for the top level."_s)},
    };
}

QJsonObject with(QJsonObject properties, const QJsonObject& more)
{
    for (auto property = more.begin(); property != more.end(); ++property)
        properties.insert(property.key(), *property);
    return properties;
}

ToolTable readingTools()
{
    return {
        {
            .access = ToolAccess::ReadOnly,
            .title = u"Show the manuscript tree"_s,
            .spec =
                {u"get_manuscript_tree"_s,
                 u"Shows the manuscript's document tree in reading order, each document with its kind "
                 "(prose/note/screenplay) and word count. Documents under another one are indented beneath "
                 "it. "
                 "Call it first to learn the titles by which the other document tools address a text; where "
                 "several share a title, the id to use instead follows it. Locked documents are marked; "
                 "documents "
                 "excluded from AI are left out, with a placeholder where others stand beneath them."_s,
                 makeObjectSchema({})},
            .handler = getManuscriptTree,
        },
        {
            .access = ToolAccess::ReadOnly,
            .title = u"Read a document"_s,
            .spec =
                {u"get_document"_s,
                 u"Reads one document: kind, status, point of view, synopsis, word count, and its body as "
                 u"Markdown. "
                 "The body is that of the variant in use, else the main text, with footnote references as "
                 "[^id] and "
                 "the program's own formatting as {.tw ...} groups; leave those where they are when you "
                 "write the "
                 "body back. A long body can be read in pieces with \"offset\" and \"limit\", both in "
                 "characters; the "
                 "answer says where the next piece begins. Read the whole body before you replace it with "
                 "update_document. Finds documents of mounted libraries, too."_s,
                 makeSubjectSchema(
                     u"title"_s, titleDescription,
                     {{u"offset"_s, integerProperty(u"The first character of the body to show."_s, 0)},
                      {u"limit"_s,
                       integerProperty(u"The most characters of the body to show; all by default."_s)}})},
            .subject = u"title"_s,
            .handler = getDocument,
        },
    };
}

ToolTable editingTools()
{
    return {
        {
            .access = ToolAccess::Changing,
            .title = u"Create a document"_s,
            .spec =
                {u"create_document"_s,
                 u"Creates a document in the manuscript tree, appended after its siblings. \"kind\" is prose "
                 u"(the "
                 "default), note, or screenplay; \"parent\" is the title of the document to stand under, the "
                 "top level "
                 "when left out. Body, synopsis, status, point of view and word count target can be given in "
                 "the same "
                 "call. The title must be unique among documents, since every tool addresses a document by "
                 "it. To place "
                 "the new document elsewhere among its siblings, call update_document afterwards."_s,
                 makeObjectSchema(
                     with(
                         planningProperties(Default::First),
                         {{u"title"_s, textProperty(u"The new document's title."_s)}}),
                     {u"title"_s})},
            .refusedByHandler = {u"kind"_s},
            .handler = createDocument,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Change a document"_s,
            .hints = {.isDestructive = true, .isIdempotent = true},
            .spec =
                {u"update_document"_s,
                 u"Sparse update of one document: only the keys you pass change (new_title, body, synopsis, "
                 u"status, "
                 "point_of_view, word_count_target, kind, parent). \"body\" replaces the whole text in use, "
                 "so read it "
                 "with get_document first, and use append_to_document to continue a chapter or find_replace "
                 "for small "
                 "corrections. To reorder, pass at most one of \"order\" (first or last), \"index\" (0-based "
                 "position), "
                 "\"before\" or \"after\" (a sibling's title), alone or together with \"parent\" to place "
                 "the document "
                 "after moving it; an empty \"parent\" moves it to the top level. A document cannot be moved "
                 "into its "
                 "own subtree, nor renamed to a title that another document has. Locked documents and those "
                 "of mounted "
                 "libraries are refused. For a change that is hard to compare afterwards, call "
                 "snapshot_document_version first."_s,
                 makeSubjectSchema(
                     u"title"_s, titleDescription,
                     with(
                         planningProperties(Default::None),
                         {{u"new_title"_s, textProperty(u"The title from now on."_s)},
                          {u"order"_s, choiceProperty(
                                           u"Put it first or last among its siblings."_s,
                                           {u"first"_s, u"last"_s}, Default::None)},
                          {u"index"_s, integerProperty(u"Its position among its siblings, from 0."_s)},
                          {u"before"_s, textProperty(u"The title of the sibling to stand before."_s)},
                          {u"after"_s, textProperty(u"The title of the sibling to stand after."_s)}}))},
            .subject = u"title"_s,
            .refusedByHandler = {u"kind"_s},
            .handler = updateDocument,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Continue a document"_s,
            .spec =
                {u"append_to_document"_s,
                 u"Appends prose to the end of a document's body, preserving its stored format (use this to "
                 u"continue a "
                 "chapter without resending the whole body). \"text\" is Markdown; it begins a paragraph of "
                 "its own, "
                 "so do not repeat the end of what is there. While a variant is in use, the variant is "
                 "continued. "
                 "Locked documents are refused."_s,
                 makeSubjectSchema(
                     u"title"_s, titleDescription,
                     {{u"text"_s, textProperty(u"The paragraphs to append, as Markdown."_s)}}, {u"text"_s})},
            .subject = u"title"_s,
            .handler = appendToDocument,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Find and replace"_s,
            .hints = {.isDestructive = true},
            .spec =
                {u"find_replace"_s,
                 u"Project-wide find & replace over document bodies (regex-capable). Without \"replace\", or "
                 u"with "
                 "\"dry_run\": true, it only lists the matches with the words around them; do that first. An "
                 "empty "
                 "\"replace\" deletes what is found. Looks at the prose as it is read: {.tw ...} groups, the "
                 "targets of "
                 "links and the labels of footnotes are neither found nor changed, and formatting around a "
                 "match stays. "
                 "Ignores case unless \"case_sensitive\" is set; \"whole_word\" leaves longer words alone. "
                 "With "
                 "\"regex\", \\1 to \\9 in \"replace\" stand for the groups and \\0 for the whole match. "
                 "\"scope\" is "
                 "project (the default), document, or subtree (a document and all beneath it), the document "
                 "given by "
                 "\"scope_id\". All documents are changed as one undo step. Locked documents are left as "
                 "they are and "
                 "named in the answer; those excluded from AI are not searched. To rename a character or a "
                 "place "
                 "everywhere, use rename_object instead."_s,
                 makeObjectSchema(
                     {{u"find"_s,
                       textProperty(u"The text, or with \"regex\" the expression, to look for."_s)},
                      {u"replace"_s,
                       textProperty(u"What to put in its place; leave it out to list matches only."_s)},
                      {u"regex"_s, booleanProperty(u"Whether \"find\" is a regular expression."_s)},
                      {u"case_sensitive"_s, booleanProperty(u"Whether upper and lower case differ."_s)},
                      {u"whole_word"_s, booleanProperty(u"Whether only whole words count."_s)},
                      {u"dry_run"_s, booleanProperty(u"Only report what would change."_s)},
                      {u"scope"_s,
                       choiceProperty(
                           u"Where to look."_s, {u"project"_s, u"document"_s, u"subtree"_s}, Default::First)},
                      {u"scope_id"_s,
                       textProperty(u"The id or the title of the document that the scope is about."_s)}},
                     {u"find"_s})},
            .handler = findReplace,
        },
    };
}

ToolTable versionTools()
{
    return {
        {
            .access = ToolAccess::ReadOnly,
            .title = u"List versions of a document"_s,
            .spec =
                {u"get_document_versions"_s,
                 u"Lists a document's saved version snapshots with labels and timestamps, oldest first. "
                 u"Times are UTC. "
                 "Snapshots are compared and restored by the writer in Vellory's Version History. "
                 "Alternative drafts "
                 "are something else; manage_variants lists those."_s,
                 makeSubjectSchema(u"title"_s, titleDescription)},
            .subject = u"title"_s,
            .handler = getDocumentVersions,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Save a version of a document"_s,
            .spec =
                {u"snapshot_document_version"_s,
                 u"Saves a version snapshot of a document's current body, so the draft can later be compared "
                 u"against or "
                 "restored in Vellory's Version History. \"label\" says what the version is, such as 'Before "
                 "the new "
                 "ending'. Takes the text in use: the variant's while one is active. Call it before you "
                 "rewrite a "
                 "chapter. Locked documents are refused."_s,
                 makeSubjectSchema(
                     u"title"_s, titleDescription,
                     {{u"label"_s, textProperty(u"What the version is called; not empty."_s)}},
                     {u"label"_s})},
            .subject = u"title"_s,
            .handler = snapshotDocumentVersion,
        },
    };
}

ToolTable footnoteTools()
{
    return {
        {
            .access = ToolAccess::ReadOnly,
            .title = u"List footnotes"_s,
            .spec =
                {u"list_footnotes"_s,
                 u"Lists a document's footnotes and endnotes in reader numbering (order of first [^id] "
                 u"reference in the "
                 "body), plus any unreferenced definitions. References without a definition are listed as "
                 "well, so that "
                 "they can be repaired with add_footnote. The ids it shows are what update_footnote and "
                 "remove_footnote "
                 "take."_s,
                 makeSubjectSchema(u"title"_s, titleDescription)},
            .subject = u"title"_s,
            .handler = listFootnotes,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Add a footnote"_s,
            .spec =
                {u"add_footnote"_s,
                 u"Adds a footnote or endnote definition to a document. The answer gives the reference "
                 u"[^id]; put it "
                 "into the body with update_document or find_replace, since the definition alone is not "
                 "shown to "
                 "readers. \"footnote_id\" is the id to use, without blanks or brackets; the next free "
                 "number when left "
                 "out. \"endnote\": true collects the note at the end rather than at the foot of the page."_s,
                 makeSubjectSchema(
                     u"document"_s, documentDescription,
                     {{u"text"_s, textProperty(u"What the note says, as Markdown."_s)},
                      {u"footnote_id"_s,
                       textProperty(u"The id for the reference; the next free number by default."_s)},
                      {u"endnote"_s, booleanProperty(u"Whether it is an endnote."_s)}},
                     {u"text"_s})},
            .subject = u"document"_s,
            .handler = addFootnote,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Edit a footnote"_s,
            .hints = {.isDestructive = true, .isIdempotent = true},
            .spec =
                {u"update_footnote"_s,
                 u"Edits an existing footnote definition's text and/or endnote flag, by id. What is left out "
                 u"stays. "
                 "list_footnotes shows the ids. A note that is defined in the body itself, on a line of its "
                 "own, is "
                 "edited with update_document instead."_s,
                 makeSubjectSchema(
                     u"document"_s, documentDescription,
                     {{u"footnote_id"_s, textProperty(footnoteIdDescription)},
                      {u"text"_s, textProperty(u"What the note says from now on."_s)},
                      {u"endnote"_s,
                       booleanProperty(
                           u"Whether it is an endnote; as it is when left out."_s, std::nullopt)}},
                     {u"footnote_id"_s})},
            .subject = u"document"_s,
            .handler = updateFootnote,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Remove a footnote"_s,
            .hints = {.isDestructive = true},
            .spec =
                {u"remove_footnote"_s,
                 u"Deletes a footnote definition by id. References to it in the body stay, and the answer "
                 u"says so when "
                 "there are any; take them out with update_document. list_footnotes shows the ids."_s,
                 makeSubjectSchema(
                     u"document"_s, documentDescription,
                     {{u"footnote_id"_s, textProperty(footnoteIdDescription)}}, {u"footnote_id"_s})},
            .subject = u"document"_s,
            .handler = removeFootnote,
        },
    };
}

ToolTable variantTools()
{
    return {
        {
            .access = ToolAccess::Changing,
            .title = u"Manage alternative drafts"_s,
            .hints = {.isDestructive = true},
            .spec =
                {u"manage_variants"_s,
                 u"Manages a document's alternate ('what-if') drafts, distinct from version snapshots. "
                 u"\"action\" is "
                 "list (the default), create, switch, rename, or delete. \"create\" makes a variant called "
                 "\"name\" "
                 "from \"body\", or from the text in use when that is left out, and does not switch to it. "
                 "\"switch\" "
                 "puts the variant \"name\" into use, for the writer and for every tool that reads or "
                 "changes the body; "
                 "without a name it goes back to the main text. \"rename\" needs \"name\" and \"new_name\". "
                 "\"delete\" "
                 "removes a variant with its text; the main text cannot be deleted. Locked documents can "
                 "only be "
                 "listed."_s,
                 makeSubjectSchema(
                     u"document"_s, documentDescription,
                     {{u"action"_s,
                       choiceProperty(
                           u"What to do."_s, {u"list"_s, u"create"_s, u"switch"_s, u"rename"_s, u"delete"_s},
                           Default::First)},
                      {u"name"_s,
                       textProperty(u"The variant. With \"switch\", left out for the main text."_s)},
                      {u"new_name"_s, textProperty(u"With \"rename\": the name from now on."_s)},
                      {u"body"_s, textProperty(u"With \"create\": its text as Markdown."_s)}})},
            .subject = u"document"_s,
            .handler = manageVariants,
        },
    };
}

} // namespace

ToolTable documentTools()
{
    ToolTable tools;
    for (const auto& part : {readingTools(), editingTools(), versionTools(), footnoteTools(), variantTools()})
        tools.insert(tools.end(), part.begin(), part.end());
    return tools;
}

void registerMcpDocumentTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog)
{
    registerTools(server, workspace, changeLog, documentTools());
}

} // namespace tw::app::mcp
