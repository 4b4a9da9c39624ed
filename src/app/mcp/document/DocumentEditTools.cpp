#include "app/mcp/document/DocumentEditTools.h"

#include "app/mcp/document/DocumentPlace.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/UndoStep.h"
#include "core/content/ContentCommands.h"
#include "core/document/ActiveText.h"
#include "core/document/AppendText.h"
#include "core/document/DocumentCommands.h"
#include "core/document/markup/BodyWords.h"
#include "core/document/markup/LegacyHtml.h"

#include <limits>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::content::ContentKind;
using core::document::BodyFormat;
using core::document::Document;
using core::document::DocumentKind;
using core::undo::Command;

namespace {

Result<DocumentKind> readKind(const QString& name)
{
    if (const auto kind = core::document::documentKindFromName(name.trimmed().toLower()))
        return *kind;
    return Failure{u"Unknown document kind '%1' (use prose, note, or screenplay)."_s.arg(name)};
}

qint32 readTarget(const ToolArguments& arguments)
{
    return static_cast<qint32>(
        arguments.integer(u"word_count_target", 0, 0, std::numeric_limits<qint32>::max()));
}

/** Commands for what differs from what a document has. */
class DocumentEdits
{
public:
    explicit DocumentEdits(Document& document)
        : m_document(document)
    {}

    template <class SetField, class Value>
    void setIfOther(const Value& present, const std::optional<Value>& given)
    {
        if (given && *given != present)
            m_commands.push_back(std::make_unique<SetField>(m_document, *given));
    }

    void setBody(const std::optional<QString>& body)
    {
        const auto present = core::document::activeText(m_document);
        if (body && *body != core::document::markup::markdownOf(present)) {
            m_commands.push_back(
                core::document::makeSetActiveTextCommand(m_document, {*body, BodyFormat::Markdown}));
        }
    }

    void add(std::unique_ptr<Command> command) { m_commands.push_back(std::move(command)); }

    void pushTo(core::undo::UndoStack& history)
    {
        for (auto& command : m_commands)
            history.push(std::move(command));
        m_commands.clear();
    }

    [[nodiscard]] bool isEmpty() const { return m_commands.empty(); }

private:
    Document& m_document;
    std::vector<std::unique_ptr<Command>> m_commands;
};

/** All of update_document but the place: the edits, or why not. */
Result<void> readEdits(
    workspace::Workspace& workspace, const Document& document, const ToolArguments& arguments,
    DocumentEdits& edits)
{
    using namespace core::document;
    std::optional<DocumentKind> kind;
    if (arguments.has(u"kind") && !arguments.isNull(u"kind")) {
        const auto read = readKind(arguments.text(u"kind"));
        if (!read)
            return Failure{read.message()};
        kind = read.value();
    }
    std::optional<QString> title = arguments.givenText(u"new_title");
    if (title) {
        title = title->trimmed();
        if (const auto checked = checkRename(workspace.project(), document, *title); !checked)
            return checked;
    }
    edits.setIfOther<SetDocumentTitleCommand>(document.title(), title);
    edits.setBody(arguments.givenText(u"body"));
    edits.setIfOther<SetDocumentSynopsisCommand>(document.synopsis(), arguments.givenText(u"synopsis"));
    edits.setIfOther<SetDocumentStatusCommand>(document.status(), arguments.givenText(u"status"));
    edits.setIfOther<SetDocumentPointOfViewCommand>(
        document.pointOfView(), arguments.givenText(u"point_of_view"));
    if (arguments.has(u"word_count_target"))
        edits.setIfOther<SetDocumentTargetCommand>(
            document.wordCountTarget(), std::optional(readTarget(arguments)));
    edits.setIfOther<SetDocumentKindCommand>(document.documentKind(), kind);
    return {};
}

} // namespace

McpToolResult createDocument(ToolContext& context, const ToolArguments& arguments)
{
    core::project::Project& project = context.workspace.projectForEdit();
    const QString title = arguments.text(u"title").trimmed();
    if (const auto checked = checkNewName(project, ContentKind::Document, title); !checked)
        return McpToolResult::failure(checked.message());
    const auto kind = readKind(arguments.text(u"kind", u"prose"_s));
    if (!kind)
        return McpToolResult::failure(kind.message());
    const auto parent = readParent(context.workspace, arguments.text(u"parent"));
    if (!parent)
        return McpToolResult::failure(parent.message());

    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: create_document"_s, [&] {
        auto document = std::make_unique<Document>(ContentId::create(), kind.value(), title);
        const ContentId id = document->id();
        document->setBody({arguments.text(u"body"), BodyFormat::Markdown});
        document->setSynopsis(arguments.text(u"synopsis"));
        document->setStatus(arguments.text(u"status"));
        document->setPointOfView(arguments.text(u"point_of_view"));
        document->setWordCountTarget(readTarget(arguments));
        document->setParentId(parent.value());
        document->setSortIndex(std::numeric_limits<qint32>::max());
        core::undo::UndoStack& history = context.workspace.undoStack();
        history.push(std::make_unique<core::content::AddObjectCommand>(project, std::move(document)));
        history.push(std::make_unique<core::document::MoveDocumentCommand>(
            project, id, parent.value(), std::numeric_limits<qint32>::max()));
        return McpToolResult::success(u"Created document '%1'."_s.arg(title));
    });
}

McpToolResult updateDocument(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findForChange<Document>(context.workspace, arguments, u"title");
    if (!found)
        return McpToolResult::failure(found.message());
    Document& document = *found.value();
    const auto place = readPlace(context.workspace, document, arguments);
    if (!place)
        return McpToolResult::failure(place.message());
    DocumentEdits edits(document);
    if (const auto read = readEdits(context.workspace, document, arguments, edits); !read)
        return McpToolResult::failure(read.message());
    if (place.value()) {
        edits.add(std::make_unique<core::document::MoveDocumentCommand>(
            context.workspace.projectForEdit(), document.id(), place.value()->parentId,
            place.value()->index));
    }
    if (edits.isEmpty()) {
        return McpToolResult::success(
            u"Document '%1' already matches; nothing changed."_s.arg(document.title()));
    }
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: update_document"_s, [&] {
        edits.pushTo(context.workspace.undoStack());
        return McpToolResult::success(u"Updated document '%1'."_s.arg(document.title()));
    });
}

McpToolResult appendToDocument(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findForChange<Document>(context.workspace, arguments, u"title");
    if (!found)
        return McpToolResult::failure(found.message());
    Document& document = *found.value();
    const QString text = arguments.text(u"text");
    if (text.trimmed().isEmpty())
        return McpToolResult::failure(u"A non-empty \"text\" is required."_s);
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: append_to_document"_s, [&] {
        context.workspace.undoStack().push(core::document::makeSetActiveTextCommand(
            document, core::document::withAppended(core::document::activeText(document), text)));
        return McpToolResult::success(u"Appended %1 word(s) to '%2'."_s.arg(
            QString::number(core::document::markup::countBodyWords(text)), document.title()));
    });
}

} // namespace tw::app::mcp
