#pragma once

#include "app/mcp/registry/ToolTable.h"

namespace tw::app::mcp {

[[nodiscard]] McpToolResult createDocument(ToolContext& context, const ToolArguments& arguments);
[[nodiscard]] McpToolResult updateDocument(ToolContext& context, const ToolArguments& arguments);
[[nodiscard]] McpToolResult appendToDocument(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
