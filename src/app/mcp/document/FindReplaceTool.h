#pragma once

#include "app/mcp/registry/ToolTable.h"

namespace tw::app::mcp {

[[nodiscard]] McpToolResult findReplace(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
