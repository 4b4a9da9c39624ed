#pragma once

#include "app/mcp/registry/ToolArguments.h"
#include "core/document/Document.h"
#include "core/foundation/Result.h"

#include <optional>

namespace tw::app::workspace {
class Workspace;
}

namespace tw::app::mcp {

/** Where a document is to stand, as MoveDocumentCommand takes it. */
struct DocumentPlace
{
    core::ContentId parentId;
    qint32 index = 0;
};

/** The document that an argument names as parent: null for an empty name, which is the top level. */
[[nodiscard]] core::Result<core::ContentId> readParent(
    const workspace::Workspace& workspace, const QString& title);

/**
 * Where "parent", "order", "index", "before" and "after" put a document; none when they say nothing or when
 * it stands there already. Refuses places inside its own subtree, and more than one of the four.
 */
[[nodiscard]] core::Result<std::optional<DocumentPlace>> readPlace(
    const workspace::Workspace& workspace, const core::document::Document& document,
    const ToolArguments& arguments);

} // namespace tw::app::mcp
