#include "app/mcp/registry/ToolTable.h"

#include "app/codex/MentionIndex.h"
#include "app/mcp/registry/ArgumentCheck.h"

#include <memory>
#include <utility>

namespace tw::app::mcp {

void registerTools(
    McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog, const ToolTable& tools)
{
    const auto mentions = std::make_shared<codex::MentionIndex>();
    for (const Tool& tool : tools) {
        ArgumentRules rules(tool.spec, tool.subject, tool.refusedByHandler);
        server.registerTool(
            tool.spec, [&workspace, &changeLog, mentions, rules = std::move(rules),
                        handler = tool.handler](const QJsonObject& arguments) {
                if (const auto checked = rules.check(arguments); !checked)
                    return McpToolResult::failure(checked.message());
                ToolContext context{workspace, changeLog, *mentions};
                return handler(context, ToolArguments(arguments));
            });
    }
}

} // namespace tw::app::mcp
