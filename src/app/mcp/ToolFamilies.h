#pragma once

#include "app/mcp/registry/ToolTable.h"

/**
 * The families of tools. The public functions are called in the order in which they stand here whenever a
 * project opens. How a tool is added: registry/ToolTable.h.
 */
namespace tw::app::mcp {

void registerMcpCoreTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog);
void registerMcpWorldTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog);
void registerMcpDocumentTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog);
/** Calendar, maps and media, spreadsheets, timeline. */
void registerMcpTimeAndSpaceTools(
    McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog);

void registerCalendarTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog);
void registerMapMediaTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog);
void registerSpreadsheetTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog);
void registerTimelineTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog);

// The tables behind those functions, one a family, each defined beside its function.

[[nodiscard]] ToolTable coreTools();
[[nodiscard]] ToolTable worldTools();
[[nodiscard]] ToolTable documentTools();
[[nodiscard]] ToolTable calendarTools();
[[nodiscard]] ToolTable mapMediaTools();
[[nodiscard]] ToolTable spreadsheetTools();
[[nodiscard]] ToolTable timelineTools();

} // namespace tw::app::mcp
