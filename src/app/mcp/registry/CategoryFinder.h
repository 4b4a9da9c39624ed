#pragma once

#include "app/workspace/Workspace.h"
#include "core/foundation/Result.h"

#include <vector>

namespace tw::app::mcp {

/** The categories with that name, ignoring blanks around it and the case of letters; else the one whose id it
 * is. */
[[nodiscard]] std::vector<core::CategoryId> categoriesNamed(
    const core::project::Project& project, const QString& name);

/** The one category of a project with that name or id. The message of a failure is the whole answer: none of
 * that name, or several with their ids. */
[[nodiscard]] core::Result<core::CategoryId> chooseCategory(
    const core::project::Project& project, const QString& name);

/** The same in the open project, to point at it from elsewhere: one that only a mounted library has is
 * refused. */
[[nodiscard]] core::Result<core::CategoryId> resolveCategory(
    const workspace::Workspace& workspace, const QString& name);

} // namespace tw::app::mcp
