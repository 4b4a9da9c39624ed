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

/** What a sweep looks at of an event that has a place. */
struct PlacedEvent
{
    TimeSpan span;
    quint32 place = 0;
};

/** The events of one participant that have a place, by number, in two orders. */
struct Itinerary
{
    std::span<const PlacedEvent> events;
    std::span<const quint32> byStart;
    std::span<const quint32> byEnd;
};

/** The itineraries of all participants. A value of its own. */
class Itineraries
{
public:
    explicit Itineraries(const TimelineFacts& facts);

    [[nodiscard]] Itinerary of(quint32 participant) const;

private:
    /** By number; what matters alone, so that much of it stays near the processor. */
    std::vector<PlacedEvent> m_events;
    /** Where a participant's events begin in the two lists; one more entry for the end of the last. */
    std::vector<quint32> m_begins;
    std::vector<quint32> m_byStart;
    std::vector<quint32> m_byEnd;
};

// Both are equal to comparing all pairs of the events, at the price of those that are found. The pairs are
// ordered; the first number of a pair is the smaller one.

/** Pairs that overlap in different places. */
[[nodiscard]] std::vector<EventPair> clashes(const Itinerary& itinerary);

/** Pairs apart in time and place, with less time between them than their route takes. */
[[nodiscard]] std::vector<EventPair> hurries(const Itinerary& itinerary, const RouteTable& routes);

} // namespace tw::app::timeline
