#include "app/mcp/ToolFamilies.h"

namespace tw::app::mcp {

void registerMcpTimeAndSpaceTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog)
{
    registerCalendarTools(server, workspace, changeLog);
    registerMapMediaTools(server, workspace, changeLog);
    registerSpreadsheetTools(server, workspace, changeLog);
    registerTimelineTools(server, workspace, changeLog);
}

} // namespace tw::app::mcp
