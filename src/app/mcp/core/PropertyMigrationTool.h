#pragma once

#include "app/mcp/registry/ToolTable.h"

namespace tw::app::mcp {

/** The tidy-up of properties and of categories written two ways. The engines are in app/codex. */
[[nodiscard]] McpToolResult propertyMigration(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
