#pragma once

#include "app/mcp/registry/ToolTable.h"

/** Handlers for spreadsheets. */
namespace tw::app::mcp {

McpToolResult getSpreadsheet(ToolContext& context, const ToolArguments& arguments);
McpToolResult createSpreadsheet(ToolContext& context, const ToolArguments& arguments);
McpToolResult updateSpreadsheet(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
