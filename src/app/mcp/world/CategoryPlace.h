#pragma once

#include "app/mcp/registry/ToolArguments.h"
#include "app/workspace/Workspace.h"
#include "core/foundation/Result.h"

namespace tw::app::mcp {

/** Where a category is to stand: nothing given, the top level, under a category, or under an entity. */
struct GivenPlace
{
    bool isGiven = false;
    core::CategoryId parentId;
    core::ContentId entityId;
    /** What the answer calls it. */
    QString name;
};

/** The place of "parent" or "parent_entity", of which at most one may be there. */
[[nodiscard]] core::Result<GivenPlace> readCategoryPlace(
    const workspace::Workspace& workspace, const ToolArguments& arguments);

/** Whether another category of the project has the name. */
[[nodiscard]] bool isCategoryNameTaken(
    const core::project::Project& project, const QString& name, const core::CategoryId& except = {});

} // namespace tw::app::mcp
