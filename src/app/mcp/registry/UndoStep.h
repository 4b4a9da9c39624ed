#pragma once

#include "app/mcp/registry/McpChangeLog.h"
#include "app/mcp/registry/McpToolResult.h"

#include <functional>

namespace tw::app::workspace {
class Workspace;
}

namespace tw::app::mcp {

/**
 * Runs the change of one tool call as one step of the history ("MCP: create task"), saved at once and entered
 * in the log. `body` pushes its commands and says how it went:
 *
 * - A failure takes back whatever the body pushed.
 * - A success that pushed nothing leaves no step, and nothing is saved or logged.
 * - When saving fails, the change stays, can be undone, and the result is a failure that says so.
 *
 * Works the same inside an open macro, whose step the change then becomes a part of.
 */
[[nodiscard]] McpToolResult applyAsUndoStep(
    workspace::Workspace& workspace, McpChangeLog& changeLog, const QString& label,
    const std::function<McpToolResult()>& body);

} // namespace tw::app::mcp
