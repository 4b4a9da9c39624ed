#pragma once

#include "app/mcp/registry/ToolTable.h"

/**
 * The tools of the codex and of the project as a whole: each function gives one row of the family's table.
 * They stand in the files named beside them.
 */
namespace tw::app::mcp {

// OverviewTool.cpp
[[nodiscard]] Tool getProjectOverviewTool();
// SearchTool.cpp
[[nodiscard]] Tool searchTool();
// EntityReport.cpp
[[nodiscard]] Tool getEntityTool();
// NameTools.cpp
[[nodiscard]] Tool renameObjectTool();
[[nodiscard]] Tool checkNameTool();
// CodexReports.cpp
[[nodiscard]] Tool listCategoryTool();
[[nodiscard]] Tool getRelationshipsTool();
[[nodiscard]] Tool getCategoryTool();
// CategoryCreation.cpp
[[nodiscard]] Tool createCategoryTool();
// CategoryUpdate.cpp
[[nodiscard]] Tool updateCategoryTool();
// FieldTools.cpp
[[nodiscard]] Tool addFieldTool();
[[nodiscard]] Tool removeFieldTool();
[[nodiscard]] Tool moveFieldTool();
// FieldConversionTool.cpp
[[nodiscard]] Tool convertFieldTool();
// EntityPropertyTool.cpp
[[nodiscard]] Tool entityPropertyTool();
// EntityTools.cpp
[[nodiscard]] Tool createEntityTool();
[[nodiscard]] Tool updateEntityTool();
// EntityMergeTools.cpp
[[nodiscard]] Tool mergeEntitiesTool();
[[nodiscard]] Tool splitEntityTool();
// ObjectTools.cpp
[[nodiscard]] Tool deleteObjectTool();
[[nodiscard]] Tool setVisibilityTool();
[[nodiscard]] Tool setAiExclusionTool();
// CommentTools.cpp
[[nodiscard]] Tool addCommentTool();
[[nodiscard]] Tool replyCommentTool();
[[nodiscard]] Tool resolveCommentTool();
// CommentReport.cpp
[[nodiscard]] Tool listCommentsTool();

} // namespace tw::app::mcp
