#pragma once

#include "app/mcp/registry/ToolTable.h"

/** What a document keeps beside the text in use: snapshots of it, and alternative drafts. */
namespace tw::app::mcp {

[[nodiscard]] McpToolResult getDocumentVersions(ToolContext& context, const ToolArguments& arguments);
[[nodiscard]] McpToolResult snapshotDocumentVersion(ToolContext& context, const ToolArguments& arguments);
[[nodiscard]] McpToolResult manageVariants(ToolContext& context, const ToolArguments& arguments);

} // namespace tw::app::mcp
