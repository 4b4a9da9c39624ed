#pragma once

#include "app/mcp/registry/ToolTable.h"

/** Handlers for timelines and the bands behind them. */
namespace tw::app::mcp {

McpToolResult getTimeline(ToolContext& context, const ToolArguments& arguments);
McpToolResult updateTimeline(ToolContext& context, const ToolArguments& arguments);
McpToolResult manageEras(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
