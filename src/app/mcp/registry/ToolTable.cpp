#include "app/mcp/registry/ToolTable.h"

#include "app/mcp/registry/ArgumentCheck.h"

namespace tw::app::mcp {

void registerTools(
    McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog, const ToolTable& tools)
{
    for (const Tool& tool : tools) {
        server.registerTool(tool.spec, [&workspace, &changeLog, tool](const QJsonObject& arguments) {
            const auto checked = checkArguments(tool.spec, tool.subject, arguments, tool.refusedByHandler);
            if (!checked)
                return McpToolResult::failure(checked.message());
            ToolContext context{workspace, changeLog};
            return tool.handler(context, ToolArguments(arguments));
        });
    }
}

} // namespace tw::app::mcp
