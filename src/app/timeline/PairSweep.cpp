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

/** The events going on in one place. */
struct Gathering
{
    quint32 place = 0;
    std::vector<quint32> events;
};

} // namespace

PairSweep::PairSweep(const TimelineFacts& facts)
    : m_facts(facts)
    , m_begins(facts.things.size() + 1)
{
    for (const Event& event : facts.events) {
        if (event.place != TimelineFacts::noPlace) {
            for (const quint32 participant : event.participants)
                ++m_begins[participant + 1];
        }
    }
    std::partial_sum(m_begins.begin(), m_begins.end(), m_begins.begin());

    // Sorted once for all participants: dealing the events out in order leaves every itinerary in order.
    std::vector<quint32> order(facts.events.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::sort(order, {}, [&facts](quint32 event) { return facts.events[event].span.start; });
    m_byStart = placedByParticipant(order);
    std::ranges::sort(order, {}, [&facts](quint32 event) { return facts.events[event].span.end; });
    m_byEnd = placedByParticipant(order);
}

std::vector<quint32> PairSweep::placedByParticipant(const std::vector<quint32>& order) const
{
    std::vector<quint32> placed(m_begins.back());
    std::vector<quint32> next = m_begins;
    for (const quint32 number : order) {
        const Event& event = m_facts.events[number];
        if (event.place == TimelineFacts::noPlace)
            continue;
        for (const quint32 participant : event.participants)
            placed[next[participant]++] = number;
    }
    return placed;
}

Itinerary PairSweep::itinerary(quint32 participant) const
{
    const quint32 begin = m_begins[participant];
    const quint32 count = m_begins[participant + 1] - begin;
    return {std::span(m_byStart).subspan(begin, count), std::span(m_byEnd).subspan(begin, count)};
}

std::vector<EventPair> PairSweep::clashes(const Itinerary& itinerary) const
{
    std::vector<EventPair> pairs;
    // By place, so that any number of events going on in one place costs nothing: everything looked at in
    // another place is either over, and dropped for good, or a pair.
    std::vector<Gathering> gatherings;
    for (const quint32 number : itinerary.byStart) {
        const Event& event = m_facts.events[number];
        bool isPlaceKnown = false;
        for (Gathering& gathering : gatherings) {
            if (gathering.place == event.place) {
                gathering.events.push_back(number);
                isPlaceKnown = true;
                continue;
            }
            std::erase_if(gathering.events, [this, &event](quint32 other) {
                return isOver(m_facts.events[other].span, event.span.start);
            });
            for (const quint32 other : gathering.events)
                pairs.push_back(inOrder(number, other));
        }
        std::erase_if(gatherings, [](const Gathering& gathering) { return gathering.events.empty(); });
        if (!isPlaceKnown)
            gatherings.push_back({event.place, {number}});
    }
    std::ranges::sort(pairs);
    return pairs;
}

std::vector<EventPair> PairSweep::hurries(const Itinerary& itinerary) const
{
    std::vector<EventPair> pairs;
    std::size_t overCount = 0;
    for (const quint32 number : itinerary.byStart) {
        const Event& event = m_facts.events[number];
        const auto endOf = [this, &itinerary](std::size_t index) {
            return m_facts.events[itinerary.byEnd[index]].span.end;
        };
        while (overCount < itinerary.byEnd.size() && endOf(overCount) <= event.span.start)
            ++overCount;
        // Back from what ended last, while a journey from there could still be too long.
        const double longest = m_facts.routes.longestAt(event.place);
        for (std::size_t index = overCount; index-- > 0;) {
            const double minutesBetween = minutesFrom(endOf(index), event.span.start);
            if (minutesBetween >= longest)
                break;
            if (isHurry(itinerary.byEnd[index], number, minutesBetween))
                pairs.push_back(inOrder(itinerary.byEnd[index], number));
        }
    }
    std::ranges::sort(pairs);
    return pairs;
}

bool PairSweep::isHurry(quint32 earlier, quint32 later, double minutesBetween) const
{
    const Event& from = m_facts.events[earlier];
    const Event& to = m_facts.events[later];
    if (from.place == to.place || overlaps(from.span, to.span))
        return false;
    const auto minutes = m_facts.routes.minutesBetween(from.place, to.place);
    return minutes && *minutes > minutesBetween;
}

} // namespace tw::app::timeline
