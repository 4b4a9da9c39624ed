#include "app/mcp/registry/Refusals.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/world/CommentLookup.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"

#include <algorithm>
#include <map>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::content::ContentObject;
using core::project::Project;
using core::research::Comment;

namespace {

/** The threads of a project's comments, as an answer lists them. */
class CommentThreads
{
public:
    enum class Show
    {
        Open,
        All,
    };

    CommentThreads(const Project& project, Show show)
        : m_project(project)
        , m_show(show)
    {
        for (const Comment* const comment : core::project::objectsOf<Comment>(project)) {
            if (!isCommentHidden(project, *comment))
                m_byTarget[comment->target().targetId].push_back(comment);
        }
        for (auto& [target, comments] : m_byTarget) {
            std::ranges::stable_sort(comments, [](const Comment* left, const Comment* right) {
                return left->details().createdAt < right->details().createdAt;
            });
        }
    }

    /** Empty when there is nothing to show. */
    [[nodiscard]] QString textOf(const ContentId& target)
    {
        m_lines.clear();
        m_shown.clear();
        const auto comments = m_byTarget.find(target);
        if (comments == m_byTarget.end())
            return {};
        for (const Comment* const comment : comments->second) {
            const bool isFirst = !isIn(comments->second, comment->parentId());
            const bool isWanted = m_show == Show::All || !comment->details().isResolved;
            if (isFirst && isWanted)
                add(comments->second, *comment, 0);
        }
        return m_lines.join(u'\n');
    }

    [[nodiscard]] QString allTexts()
    {
        QStringList parts;
        for (const auto& [target, comments] : m_byTarget) {
            const QString text = textOf(target);
            if (!text.isEmpty())
                parts.append(headingOf(target) + u'\n' + text);
        }
        return parts.join(u"\n\n"_s);
    }

private:
    [[nodiscard]] static bool isIn(const std::vector<const Comment*>& comments, const ContentId& id)
    {
        return std::ranges::find(comments, id, &Comment::id) != comments.end();
    }

    [[nodiscard]] QString headingOf(const ContentId& target) const
    {
        const ContentObject* const object = m_project.find(target);
        if (!object)
            return u"On an object that is gone"_s;
        return u"On the %1 '%2'"_s.arg(kindWord(object->kind()), shownName(*object));
    }

    void add(const std::vector<const Comment*>& thread, const Comment& comment, int depth)
    {
        // Against loops of damaged files.
        if (!m_shown.insert(comment.id()).second)
            return;
        const auto& details = comment.details();
        QStringList marks{details.author.isEmpty() ? u"unknown"_s : details.author};
        if (!details.createdAt.isEmpty())
            marks.append(details.createdAt);
        if (depth == 0)
            marks.append(details.isResolved ? u"resolved"_s : u"open"_s);
        QString line =
            QString(2 * depth, u' ') + u"- [%1] %2: "_s.arg(comment.id().toString(), marks.join(u", "_s));
        if (!comment.target().anchor.isEmpty())
            line += u"on \"%1\": "_s.arg(comment.target().anchor.simplified());
        m_lines.append(line + details.body.simplified());
        for (const Comment* const reply : thread) {
            if (reply->parentId() == comment.id())
                add(thread, *reply, depth + 1);
        }
    }

    const Project& m_project;
    Show m_show;
    std::map<ContentId, std::vector<const Comment*>> m_byTarget;
    std::set<ContentId> m_shown;
    QStringList m_lines;
};

McpToolResult listComments(ToolContext& context, const ToolArguments& arguments)
{
    const auto show =
        arguments.boolean(u"include_resolved") ? CommentThreads::Show::All : CommentThreads::Show::Open;
    const QString none =
        show == CommentThreads::Show::All ? u"There are no comments"_s : u"There are no open comments"_s;
    const bool isNarrowed =
        !arguments.text(u"target").trimmed().isEmpty() || !arguments.text(u"id").trimmed().isEmpty();
    if (!isNarrowed) {
        const QString text = CommentThreads(context.workspace.project(), show).allTexts();
        return McpToolResult::success(text.isEmpty() ? none + u" in this project."_s : text);
    }
    const auto target = findOfType(context.workspace, arguments, u"target", Purpose::Read);
    if (!target)
        return McpToolResult::failure(target.message());
    const auto& [object, library] = target.value();
    const Project& project = library ? *library->project : context.workspace.project();
    const QString text = CommentThreads(project, show).textOf(object->id());
    const QString name = shownName(*object);
    if (text.isEmpty())
        return McpToolResult::success(u"%1 on '%2'."_s.arg(none, name));
    const QString heading = u"On the %1 '%2'"_s.arg(kindWord(object->kind()), name);
    return McpToolResult::success(mountedHeading(library) + heading + u'\n' + text);
}

} // namespace

Tool listCommentsTool()
{
    return {
        .access = ToolAccess::ReadOnly,
        .title = u"List comments"_s,
        .spec =
            {u"list_comments"_s,
             u"Lists comment threads: for one target, or grouped by target across the whole project. Each "
             "comment comes with its id in square brackets -- what reply_comment and resolve_comment take -- "
             "its author, time and state, the quoted words it is about, and its replies indented below it, "
             "oldest first. Without \"target\" all threads of the open project are listed. Resolved threads "
             "are left out unless \"include_resolved\" is true (default false). Comments on objects excluded "
             "from AI are never shown."_s,
             makeObjectSchema(
                 {{u"target"_s, textProperty(u"Only the comments on this object."_s)},
                  {u"id"_s, textProperty(u"The id, in place of \"target\", when several share the name."_s)},
                  {u"type"_s,
                   objectTypeProperty(u"The kind of the target, when several kinds share the name."_s)},
                  {u"include_resolved"_s, booleanProperty(u"Whether to list resolved threads too."_s)}})},
        .refusedByHandler = {u"type"_s},
        .handler = listComments,
    };
}

} // namespace tw::app::mcp
