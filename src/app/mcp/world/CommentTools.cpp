#include "app/mcp/registry/Schema.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/world/CommentLookup.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"
#include "core/content/ContentCommands.h"
#include "core/document/ActiveText.h"
#include "core/document/markup/PlainText.h"
#include "core/research/ResearchCommands.h"

#include <QDateTime>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::content::ContentObject;
using core::document::Document;
using core::research::Comment;
using core::research::CommentDetails;
using core::research::CommentTarget;

namespace {

/** Now, as comments store it. */
QString timeText(const ToolContext& context)
{
    constexpr qint64 nanosecondsAMillisecond = 1'000'000;
    const qint64 milliseconds = context.workspace.environment().clock() / nanosecondsAMillisecond;
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC).toString(Qt::ISODate);
}

QString authorOf(const ToolArguments& arguments)
{
    const QString author = arguments.text(u"author").trimmed();
    return author.isEmpty() ? u"Assistant"_s : author;
}

void push(ToolContext& context, std::unique_ptr<Comment> comment)
{
    context.workspace.undoStack().push(std::make_unique<core::content::AddObjectCommand>(
        context.workspace.projectForEdit(), std::move(comment)));
}

/** Words of a document that are not in it could never be found again. */
bool isAnchorMissing(const ContentObject& target, const QString& anchor)
{
    const auto* const document = core::content::objectCast<Document>(&target);
    if (!document || anchor.isEmpty())
        return false;
    const core::document::DocumentBody body = core::document::activeText(*document);
    return !body.text.contains(anchor) && !core::document::markup::plainText(body).contains(anchor);
}

McpToolResult addComment(ToolContext& context, const ToolArguments& arguments)
{
    const auto target = findOfType(context.workspace, arguments, u"target", Purpose::Use);
    if (!target)
        return McpToolResult::failure(target.message());
    const ContentObject& object = *target.value().object;
    if (object.kind() == core::content::ContentKind::Comment)
        return McpToolResult::failure(u"To answer a comment call reply_comment with its id."_s);
    const QString body = arguments.text(u"body").trimmed();
    if (body.isEmpty())
        return McpToolResult::failure(u"A non-empty \"body\" is required."_s);
    const QString anchor = arguments.text(u"anchor");
    const QString name = shownName(object);
    if (isAnchorMissing(object, anchor)) {
        return McpToolResult::failure(u"The words of \"anchor\" do not stand in '%1'. Quote them exactly as "
                                      "get_document shows them, or leave \"anchor\" out to comment on the "
                                      "whole."_s.arg(name));
    }
    const QString time = timeText(context);
    auto comment = std::make_unique<Comment>(
        ContentId::create(), CommentTarget{object.id(), anchor},
        CommentDetails{authorOf(arguments), body, time, time, false});
    const QString answer = u"Added comment %1 on '%2'."_s.arg(comment->id().toString(), name);
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: add comment"_s, [&] {
        push(context, std::move(comment));
        return McpToolResult::success(answer);
    });
}

McpToolResult replyComment(ToolContext& context, const ToolArguments& arguments)
{
    const auto parent = findCommentForChange(context, arguments);
    if (!parent)
        return McpToolResult::failure(parent.message());
    const QString body = arguments.text(u"body").trimmed();
    if (body.isEmpty())
        return McpToolResult::failure(u"A non-empty \"body\" is required."_s);
    const QString time = timeText(context);
    auto reply = std::make_unique<Comment>(
        ContentId::create(), CommentTarget{parent.value()->target().targetId, {}},
        CommentDetails{authorOf(arguments), body, time, time, false});
    reply->setParentId(parent.value()->id());
    const QString answer = u"Replied to comment %1."_s.arg(parent.value()->id().toString());
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: reply to comment"_s, [&] {
        push(context, std::move(reply));
        return McpToolResult::success(answer);
    });
}

McpToolResult resolveComment(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findCommentForChange(context, arguments);
    if (!found)
        return McpToolResult::failure(found.message());
    Comment& comment = *found.value();
    const bool resolved = arguments.boolean(u"resolved", true);
    const QString id = comment.id().toString();
    const QString state = resolved ? u"resolved"_s : u"open"_s;
    if (comment.details().isResolved == resolved) {
        return McpToolResult::success(u"Comment %1 is already %2; nothing changed."_s.arg(id, state));
    }
    CommentDetails details = comment.details();
    details.isResolved = resolved;
    details.updatedAt = timeText(context);
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: resolve comment"_s, [&] {
        context.workspace.undoStack().push(
            std::make_unique<core::research::SetCommentCommand>(comment, details));
        return McpToolResult::success(u"Comment %1 is now %2."_s.arg(id, state));
    });
}

} // namespace

Tool addCommentTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Add a comment"_s,
        .spec =
            {u"add_comment"_s,
             u"Adds a review comment on a named object (Markdown body permitted). \"target\" is the title or "
             "name of any object of the project; pass \"type\" when several kinds share the name. \"anchor\" "
             "quotes the words of a document that the comment is about and must stand there exactly; without "
             "it the comment is about the whole object. \"author\" is \"Assistant\" unless given. The target "
             "itself is not changed, so a locked one may be commented on; one excluded from AI or in a "
             "mounted library may not. The answer gives the id that reply_comment and resolve_comment take. "
             "Prefer a comment over an edit when the writer should decide."_s,
             makeSubjectSchema(
                 u"target"_s, u"The object to comment on."_s,
                 {{u"body"_s, textProperty(u"The comment."_s)},
                  {u"anchor"_s, textProperty(u"The words of the text that it is about."_s)},
                  {u"author"_s, textProperty(u"Who says it. Default: Assistant."_s)},
                  {u"type"_s,
                   objectTypeProperty(u"The kind of object, when several kinds share the name."_s)}},
                 {u"body"_s})},
        .subject = u"target"_s,
        .refusedByHandler = {u"type"_s},
        .handler = addComment,
    };
}

Tool replyCommentTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Reply to a comment"_s,
        .spec =
            {u"reply_comment"_s,
             u"Posts a threaded reply to an existing comment (address it by the id list_comments prints). "
             "The reply hangs on the same object as the comment it answers, which stays open or resolved as "
             "it is. \"author\" is \"Assistant\" unless given."_s,
             makeObjectSchema(
                 {{u"comment_id"_s, textProperty(u"The id of the comment to answer."_s)},
                  {u"body"_s, textProperty(u"The reply; Markdown is permitted."_s)},
                  {u"author"_s, textProperty(u"Who says it. Default: Assistant."_s)}},
                 {u"comment_id"_s, u"body"_s})},
        .handler = replyComment,
    };
}

Tool resolveCommentTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Resolve a comment"_s,
        .hints = {.isIdempotent = true},
        .spec =
            {u"resolve_comment"_s,
             u"Marks a comment resolved (or reopens it with resolved: false). Takes the id that "
             "list_comments prints. Resolve the first comment of a thread to close the thread; list_comments "
             "leaves resolved threads out unless asked for them. Nothing is deleted. Resolve a comment of "
             "the writer's only when what it asks for is done."_s,
             makeObjectSchema(
                 {{u"comment_id"_s, textProperty(u"The comment's id."_s)},
                  {u"resolved"_s, booleanProperty(u"False reopens it."_s, true)}},
                 {u"comment_id"_s})},
        .handler = resolveComment,
    };
}

} // namespace tw::app::mcp
