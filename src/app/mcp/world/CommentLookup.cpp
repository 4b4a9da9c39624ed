#include "app/mcp/world/CommentLookup.h"

#include "app/mcp/registry/Refusals.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::project::Project;
using core::research::Comment;

bool isCommentHidden(const Project& project, const Comment& comment)
{
    const auto* const target = project.find(comment.target().targetId);
    return comment.isAiExcluded() || (target && target->isAiExcluded());
}

Result<Comment*> findCommentForChange(ToolContext& context, const ToolArguments& arguments)
{
    const QString idText = arguments.text(u"comment_id").trimmed();
    const ContentId id = ContentId::fromString(idText);
    Project& project = context.workspace.projectForEdit();
    auto* const comment = project.findAsForEdit<Comment>(id);
    if (!comment) {
        for (const workspace::MountedLibrary& library : context.workspace.libraries()) {
            if (library.project->findAs<Comment>(id)) {
                return Failure{
                    u"Comment '%1' lives in a mounted library; this server edits only the open project."_s
                        .arg(idText)};
            }
        }
        return Failure{u"No comment with id '%1' exists."_s.arg(idText)};
    }
    if (isCommentHidden(project, *comment))
        return Failure{excludedFromChange(idText)};
    if (comment->isLocked())
        return Failure{locked(idText)};
    return comment;
}

} // namespace tw::app::mcp
