#pragma once

#include "app/timeline/TimelineFacts.h"

#include <span>
#include <vector>

namespace tw::app::timeline {

/** Two events of one participant, by number. */
struct EventPair
{
    quint32 first = 0;
    quint32 second = 0;

    friend auto operator<=>(const EventPair&, const EventPair&) = default;
};

/** The events of one participant that have a place, in two orders. */
struct Itinerary
{
    std::span<const quint32> byStart;
    std::span<const quint32> byEnd;
};

/**
 * The events with places by participant: equal to comparing all pairs of a participant's events, at the price
 * of sorting them and of the pairs that are found. The facts must outlive it.
 */
class PairSweep
{
public:
    explicit PairSweep(const TimelineFacts& facts);

    [[nodiscard]] Itinerary itinerary(quint32 participant) const;

    /** Pairs that overlap in different places, ordered; the first number of a pair is the smaller one. */
    [[nodiscard]] std::vector<EventPair> clashes(const Itinerary& itinerary) const;
    /** Pairs apart in time and place, with less time between them than their route takes; as above. */
    [[nodiscard]] std::vector<EventPair> hurries(const Itinerary& itinerary) const;

private:
    [[nodiscard]] bool isHurry(quint32 earlier, quint32 later, double minutesBetween) const;
    [[nodiscard]] std::vector<quint32> placedByParticipant(const std::vector<quint32>& order) const;

    const TimelineFacts& m_facts;
    /** Where a participant's events begin in the two lists; one more entry for the end of the last. */
    std::vector<quint32> m_begins;
    std::vector<quint32> m_byStart;
    std::vector<quint32> m_byEnd;
};

} // namespace tw::app::timeline
