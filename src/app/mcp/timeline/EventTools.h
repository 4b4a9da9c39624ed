#pragma once

#include "app/mcp/registry/ToolTable.h"

/** Handlers for timeline events and those who take part in them. */
namespace tw::app::mcp {

McpToolResult createTimelineEvent(ToolContext& context, const ToolArguments& arguments);
McpToolResult createMissingEntities(ToolContext& context, const ToolArguments& arguments);
McpToolResult updateTimelineEvent(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
