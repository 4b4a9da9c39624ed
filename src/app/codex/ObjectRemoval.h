#pragma once

#include "app/codex/EditPlan.h"

namespace tw::app::codex {

struct RemovalPlan
{
    EditPlan edits;
    /** What elsewhere refers to the object and leads nowhere afterwards. */
    qsizetype danglingCount = 0;
    /** Documents beneath it, which the manuscript no longer reaches. */
    qsizetype unreachableCount = 0;
    /** Categories that hung under it and move to where it stood. */
    qsizetype rescuedCategoryCount = 0;
};

[[nodiscard]] RemovalPlan planRemoval(
    const core::project::Project& project, const core::content::ContentObject& object);

} // namespace tw::app::codex
