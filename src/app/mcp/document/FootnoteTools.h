#pragma once

#include "app/mcp/registry/ToolTable.h"

namespace tw::app::mcp {

[[nodiscard]] McpToolResult listFootnotes(ToolContext& context, const ToolArguments& arguments);
[[nodiscard]] McpToolResult addFootnote(ToolContext& context, const ToolArguments& arguments);
[[nodiscard]] McpToolResult updateFootnote(ToolContext& context, const ToolArguments& arguments);
[[nodiscard]] McpToolResult removeFootnote(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
