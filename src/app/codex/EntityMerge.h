#pragma once

#include "app/codex/EditPlan.h"
#include "core/entity/Entity.h"
#include "core/foundation/Result.h"

#include <set>

namespace tw::app::codex {

struct MergePlan
{
    EditPlan edits;
    /** Places elsewhere that referred to the source. */
    qsizetype repointedCount = 0;
    /** The other objects that are changed. */
    std::set<core::ContentId> holders;
};

/**
 * Makes one entity of two: what the target lacks (values, states over time, lifespan, properties of its own)
 * comes from the source, lists (aliases with the source's name, tags, gallery, plot threads) are joined,
 * every reference to the source leads to the target, and the source goes. What the target has stays as it is.
 *
 * Refused when both are the same, and when a category under the source holds the target.
 */
[[nodiscard]] core::Result<MergePlan> planMerge(
    const core::project::Project& project, const core::entity::Entity& source,
    const core::entity::Entity& target);

struct SplitRequest
{
    QString newName;
    /** Keys of the fields to copy, with their states over time. */
    QStringList fieldKeys;
    bool copiesLifespan = false;
};

/** A new entity in the source's category with a part of what the source holds; the source stays as it is. */
[[nodiscard]] std::unique_ptr<core::entity::Entity> splitOff(
    const core::entity::Entity& source, const SplitRequest& request);

} // namespace tw::app::codex
