#pragma once

#include "app/codex/EditPlan.h"
#include "core/taxonomy/Field.h"

namespace tw::app::codex {

/** Puts a field in the place of the category's field with the same key; nothing when it has none. */
void planReplaceField(
    EditPlan& plan, const core::taxonomy::Category& category, const core::taxonomy::Field& field);

/** One behind the last of the categories beneath a category (null: the top level), for a new one there. */
[[nodiscard]] qint32 sortIndexAtEnd(
    const core::project::Project& project, const core::CategoryId& parentId,
    const core::ContentId& parentEntityId = {});

/**
 * Takes the categories that hang under an entity off it and puts them where the entity itself stands, for it
 * is about to go. Gives how many there are.
 */
qsizetype planRescueCategories(
    EditPlan& plan, const core::project::Project& project, const core::ContentId& entityId);

} // namespace tw::app::codex
