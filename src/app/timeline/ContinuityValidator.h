#pragma once

#include "app/codex/ScopedLookup.h"
#include "app/timeline/ContinuityConflict.h"

#include <span>

namespace tw::app::timeline {

/**
 * Everything that cannot be in the events of a project, in this order: missing places and participants,
 * entities in two places at once, events outside of a lifespan, journeys that take longer than there is time,
 * relations between events that do not hold. Never fails, changes nothing; what cannot be checked is passed
 * over. Events are only ever the project's own. Hidden ones are skipped, and so are the routes of hidden
 * maps; hidden participants and places are neither named nor called missing. Costs n log n for n
 * participations, and what it finds.
 */
[[nodiscard]] std::vector<ContinuityConflict> validateTimeline(
    const core::project::Project& project, const codex::ObjectScope& scope = {});

/** The rules that do not hold, in the order of the list. Rules about hidden entities are skipped. */
[[nodiscard]] std::vector<ContinuityConflict> validateRules(
    const core::project::Project& project, std::span<const core::timeline::ContinuityRule> rules,
    const codex::ObjectScope& scope = {});

} // namespace tw::app::timeline
