#pragma once

#include "app/timeline/ContinuityConflict.h"
#include "core/project/Project.h"

#include <functional>
#include <span>

namespace tw::app::timeline {

/** Where the validator looks beside the project, and what it passes over. */
struct ContinuityScope
{
    /** Mounted libraries, in their order; ids of the project win. Events are only ever the project's own. */
    std::vector<const core::project::Project*> libraries;
    /**
     * Objects that must not be spoken of; empty for none. Hidden events are skipped, and so are the routes of
     * hidden maps; hidden participants and places are neither named nor called missing.
     */
    std::function<bool(const core::content::ContentObject&)> isHidden;
};

/**
 * Everything that cannot be in the events of a project, in this order: missing places and participants,
 * entities in two places at once, events outside of a lifespan, journeys that take longer than there is time,
 * relations between events that do not hold. Never fails, changes nothing; what cannot be checked is passed
 * over. Costs n log n for n participations, and what it finds.
 */
[[nodiscard]] std::vector<ContinuityConflict> validateTimeline(
    const core::project::Project& project, const ContinuityScope& scope = {});

/** The rules that do not hold, in the order of the list. Rules about hidden entities are skipped. */
[[nodiscard]] std::vector<ContinuityConflict> validateRules(
    const core::project::Project& project, std::span<const core::timeline::ContinuityRule> rules,
    const ContinuityScope& scope = {});

} // namespace tw::app::timeline
