#pragma once

#include "app/mcp/registry/ToolTable.h"

/** Handlers of the calendar family. */
namespace tw::app::mcp {

McpToolResult getCalendar(ToolContext& context, const ToolArguments& arguments);
McpToolResult updateCalendar(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
