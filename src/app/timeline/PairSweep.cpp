#include "app/timeline/PairSweep.h"

#include <algorithm>
#include <numeric>

namespace tw::app::timeline {

using core::calendar::StoryInstant;
using Event = TimelineFacts::Event;

namespace {

EventPair inOrder(quint32 one, quint32 other)
{
    const auto [first, second] = std::minmax(one, other);
    return {first, second};
}

/** From an end to a start that is not before it. Unsigned, because the difference may not fit 64 signed bits.
 */
double minutesFrom(StoryInstant end, StoryInstant start)
{
    return static_cast<double>(static_cast<quint64>(start) - static_cast<quint64>(end));
}

/** Whether an event that began at or before `now` can no longer overlap one that begins then. */
bool isOver(const TimeSpan& span, StoryInstant now)
{
    return span.isMoment() ? span.start < now : span.end <= now;
}

/** The events of all participants, one participant behind the other, each in the order of that moment. */
std::vector<quint32> dealtOut(
    const TimelineFacts& facts, std::vector<quint32> next, StoryInstant TimeSpan::*moment)
{
    // Sorted once for all: dealing the events out in order leaves every itinerary in order.
    std::vector<std::pair<StoryInstant, quint32>> order;
    order.reserve(facts.eventCount());
    for (quint32 number = 0; number < facts.eventCount(); ++number) {
        if (facts.events[number].place != TimelineFacts::noPlace)
            order.emplace_back(facts.events[number].span.*moment, number);
    }
    std::ranges::sort(order);
    std::vector<quint32> placed(next.back());
    for (const auto& [instant, number] : order) {
        for (const quint32 participant : facts.participantsOf(number))
            placed[next[participant]++] = number;
    }
    return placed;
}

/** What goes on at the moment, by place. */
class Gatherings
{
public:
    explicit Gatherings(std::span<const PlacedEvent> events)
        : m_events(events)
    {}

    /** Pairs the event with all that go on elsewhere, then lets it begin. */
    void meet(quint32 number, std::vector<EventPair>& pairs)
    {
        const PlacedEvent& event = m_events[number];
        bool isPlaceKnown = false;
        // Any number of events in one place costs nothing: everything looked at in another place is either
        // over, and dropped for good, or a pair.
        for (std::size_t index = 0; index < m_count;) {
            Gathering& gathering = m_gatherings[index];
            if (gathering.place == event.place) {
                gathering.events.push_back(number);
                isPlaceKnown = true;
            } else {
                std::erase_if(gathering.events, [this, &event](quint32 other) {
                    return isOver(m_events[other].span, event.span.start);
                });
                for (const quint32 other : gathering.events)
                    pairs.push_back(inOrder(number, other));
            }
            if (gathering.events.empty())
                std::swap(gathering, m_gatherings[--m_count]);
            else
                ++index;
        }
        if (!isPlaceKnown)
            open(number);
    }

private:
    struct Gathering
    {
        quint32 place = 0;
        std::vector<quint32> events;
    };

    void open(quint32 number)
    {
        if (m_count == m_gatherings.size())
            m_gatherings.emplace_back();
        m_gatherings[m_count].place = m_events[number].place;
        m_gatherings[m_count].events.push_back(number);
        ++m_count;
    }

    std::span<const PlacedEvent> m_events;
    /** Those beyond the count are empty and keep their memory. */
    std::vector<Gathering> m_gatherings;
    std::size_t m_count = 0;
};

bool isHurry(const PlacedEvent& from, const PlacedEvent& to, double minutesBetween, const RouteTable& routes)
{
    if (from.place == to.place || overlaps(from.span, to.span))
        return false;
    const auto minutes = routes.minutesBetween(from.place, to.place);
    return minutes && *minutes > minutesBetween;
}

} // namespace

Itineraries::Itineraries(const TimelineFacts& facts)
    : m_begins(facts.things.size() + 1)
{
    m_events.reserve(facts.eventCount());
    for (quint32 number = 0; number < facts.eventCount(); ++number) {
        const Event& event = facts.events[number];
        m_events.push_back({event.span, event.place});
        if (event.place != TimelineFacts::noPlace) {
            for (const quint32 participant : facts.participantsOf(number))
                ++m_begins[participant + 1];
        }
    }
    std::partial_sum(m_begins.begin(), m_begins.end(), m_begins.begin());
    m_byStart = dealtOut(facts, m_begins, &TimeSpan::start);
    m_byEnd = dealtOut(facts, m_begins, &TimeSpan::end);
}

Itinerary Itineraries::of(quint32 participant) const
{
    const quint32 begin = m_begins[participant];
    const quint32 count = m_begins[participant + 1] - begin;
    return {m_events, std::span(m_byStart).subspan(begin, count), std::span(m_byEnd).subspan(begin, count)};
}

std::vector<EventPair> clashes(const Itinerary& itinerary)
{
    std::vector<EventPair> pairs;
    Gatherings gatherings(itinerary.events);
    for (const quint32 number : itinerary.byStart)
        gatherings.meet(number, pairs);
    std::ranges::sort(pairs);
    return pairs;
}

std::vector<EventPair> hurries(const Itinerary& itinerary, const RouteTable& routes)
{
    std::vector<EventPair> pairs;
    std::size_t overCount = 0;
    for (const quint32 number : itinerary.byStart) {
        const PlacedEvent& event = itinerary.events[number];
        while (overCount < itinerary.byEnd.size() &&
               itinerary.events[itinerary.byEnd[overCount]].span.end <= event.span.start)
            ++overCount;
        // Back from what ended last, while a journey from there could still be too long.
        const double longest = routes.longestAt(event.place);
        for (std::size_t index = overCount; index-- > 0;) {
            const quint32 earlier = itinerary.byEnd[index];
            const PlacedEvent& former = itinerary.events[earlier];
            const double minutesBetween = minutesFrom(former.span.end, event.span.start);
            if (minutesBetween >= longest)
                break;
            if (isHurry(former, event, minutesBetween, routes))
                pairs.push_back(inOrder(earlier, number));
        }
    }
    std::ranges::sort(pairs);
    return pairs;
}

} // namespace tw::app::timeline
