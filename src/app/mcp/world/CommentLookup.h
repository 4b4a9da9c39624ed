#pragma once

#include "app/mcp/registry/ToolTable.h"
#include "app/workspace/Workspace.h"
#include "core/foundation/Result.h"
#include "core/research/Comment.h"

namespace tw::app::mcp {

/** Whether the comment, or what it hangs on, is excluded from AI. */
[[nodiscard]] bool isCommentHidden(
    const core::project::Project& project, const core::research::Comment& comment);

/** The comment of "comment_id", to be answered or changed. */
[[nodiscard]] core::Result<core::research::Comment*> findCommentForChange(
    ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
