#pragma once

#include "app/workspace/Workspace.h"
#include "core/foundation/Result.h"
#include "core/taxonomy/Category.h"

namespace tw::app::mcp {

/**
 * The field that a category defines itself, by label or key. One that it inherits is refused with the
 * category to go to; `instead` says what to do there ("remove it from"). The pointer holds until the taxonomy
 * changes.
 */
[[nodiscard]] core::Result<const core::taxonomy::Field*> findOwnField(
    const workspace::Workspace& workspace, const core::taxonomy::Category& category, const QString& name,
    const QString& instead);

} // namespace tw::app::mcp
