#pragma once

#include "app/mcp/registry/ToolTable.h"

/** Handlers for media assets. */
namespace tw::app::mcp {

McpToolResult listMedia(ToolContext& context, const ToolArguments& arguments);
McpToolResult addMedia(ToolContext& context, const ToolArguments& arguments);
McpToolResult setMediaCaption(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
