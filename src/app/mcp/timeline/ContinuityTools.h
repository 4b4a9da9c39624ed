#pragma once

#include "app/mcp/registry/ToolTable.h"

/** Handlers for the continuity check and its rules. */
namespace tw::app::mcp {

McpToolResult getConflicts(ToolContext& context, const ToolArguments& arguments);
McpToolResult listContinuityRules(ToolContext& context, const ToolArguments& arguments);
McpToolResult createContinuityRule(ToolContext& context, const ToolArguments& arguments);
McpToolResult deleteContinuityRule(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
