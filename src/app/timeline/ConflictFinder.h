#pragma once

#include "app/timeline/TimelineFacts.h"

#include <vector>

namespace tw::app::timeline {

enum class ConflictKind
{
    MissingPlace,
    MissingParticipant,
    TwoPlaces,
    BeforeBirth,
    AfterDeath,
    Hurry,
    BrokenConstraint,
};

/** A conflict that is not put into words yet; everything by number in the facts. */
struct FoundConflict
{
    ConflictKind kind = ConflictKind::MissingPlace;
    quint32 event = 0;
    /** The other event of a pair. */
    quint32 other = 0;
    /** Who it is about, of those that are about somebody. */
    quint32 participant = 0;
    /** Of a broken one. */
    core::timeline::ConstraintKind constraint = core::timeline::ConstraintKind::StartsAfter;
};

/** What validateTimeline() finds, in the same order. Any thread. */
[[nodiscard]] std::vector<FoundConflict> findConflicts(const TimelineFacts& facts);

/** Puts them into words; the project is still as it was when the facts were gathered. */
[[nodiscard]] std::vector<ContinuityConflict> wordConflicts(
    const core::project::Project& project, const TimelineFacts& facts,
    const std::vector<FoundConflict>& conflicts);

} // namespace tw::app::timeline
