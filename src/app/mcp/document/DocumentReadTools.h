#pragma once

#include "app/mcp/registry/ToolTable.h"

namespace tw::app::mcp {

[[nodiscard]] McpToolResult getManuscriptTree(ToolContext& context, const ToolArguments& arguments);
[[nodiscard]] McpToolResult getDocument(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
