#pragma once

#include "app/mcp/registry/ToolTable.h"

/** Handlers for maps. */
namespace tw::app::mcp {

McpToolResult getMap(ToolContext& context, const ToolArguments& arguments);
McpToolResult createMap(ToolContext& context, const ToolArguments& arguments);
McpToolResult updateMap(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
