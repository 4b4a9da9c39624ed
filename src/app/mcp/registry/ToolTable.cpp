#include "app/mcp/registry/ToolTable.h"

#include "app/mcp/registry/ArgumentCheck.h"

namespace tw::app::mcp {

void registerTools(
    McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog, const ToolTable& tools)
{
    for (const Tool& tool : tools) {
        server.registerTool(
            tool.spec, [&workspace, &changeLog, spec = tool.spec, subject = tool.subject,
                        handler = tool.handler](const QJsonObject& arguments) {
                if (const auto checked = checkArguments(spec, subject, arguments); !checked)
                    return McpToolResult::failure(checked.message());
                ToolContext context{workspace, changeLog};
                return handler(context, ToolArguments(arguments));
            });
    }
}

} // namespace tw::app::mcp
