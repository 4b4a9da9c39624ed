#pragma once

#include "app/codex/Actor.h"
#include "core/foundation/Id.h"
#include "core/project/Project.h"
#include "core/undo/Command.h"

#include <functional>
#include <memory>
#include <vector>

namespace tw::app::codex {

/** Categories that are one and the same, written two ways: "Lore &amp; Concepts" and "Lore & Concepts". */
struct CategoryTwins
{
    /** Without HTML escaping. */
    QString name;
    /** The one with the most entities; among equals the one whose name is not escaped. */
    core::CategoryId kept;
    qsizetype keptEntities = 0;
    /** The others. */
    std::vector<core::CategoryId> merged;
    qsizetype movedEntities = 0;
};

/** A name without HTML escaping, however often it was escaped. */
[[nodiscard]] QString unescapedName(const QString& name);

/** All groups, by name. Categories that are simply called the same are none. */
[[nodiscard]] std::vector<CategoryTwins> findCategoryTwins(const core::project::Project& project);

/** True when an entity that the actor leaves alone would have to move. */
[[nodiscard]] bool isMergeHindered(
    const core::project::Project& project, const CategoryTwins& twins, Actor actor);

/**
 * Gives the kept category what the others declare and it does not, moves their entities, subcategories and
 * what refers to them across, and removes them. Runs the commands through `push`, since each builds on those
 * before.
 */
void mergeCategoryTwins(
    core::project::Project& project, const CategoryTwins& twins,
    const std::function<void(std::unique_ptr<core::undo::Command>)>& push);

} // namespace tw::app::codex
