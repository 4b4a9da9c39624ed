#pragma once

#include "app/mcp/registry/ToolTable.h"

/** Handlers for charts. */
namespace tw::app::mcp {

McpToolResult getChart(ToolContext& context, const ToolArguments& arguments);
McpToolResult createChart(ToolContext& context, const ToolArguments& arguments);
McpToolResult updateChart(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
