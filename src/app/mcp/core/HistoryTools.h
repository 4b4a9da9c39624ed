#pragma once

#include "app/mcp/registry/ToolTable.h"

/** What works on the session as a whole: saving, undoing, the log, backups. */
namespace tw::app::mcp {

[[nodiscard]] McpToolResult saveProject(ToolContext& context, const ToolArguments& arguments);
[[nodiscard]] McpToolResult undoLast(ToolContext& context, const ToolArguments& arguments);
[[nodiscard]] McpToolResult getRecentChanges(ToolContext& context, const ToolArguments& arguments);
[[nodiscard]] McpToolResult backupProject(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
