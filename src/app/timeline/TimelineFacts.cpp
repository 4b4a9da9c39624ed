#include "app/timeline/TimelineFacts.h"

#include "app/timeline/EntityName.h"
#include "core/map/Map.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace tw::app::timeline {

using core::ContentId;
using core::content::ContentObject;
using core::entity::Entity;
using core::map::Map;
using core::project::Project;
using core::timeline::EventDetails;
using core::timeline::TimelineEvent;

namespace {

constexpr double minutesPerHour = 60;
/** As many fetches as a processor has under way at a time, more or less. */
constexpr std::size_t eventsAhead = 12;

quint64 routeKey(quint32 from, quint32 to)
{
    const auto [smaller, larger] = std::minmax(from, to);
    return quint64{smaller} << 32 | larger;
}

/** The processor fetches what lies there while it goes on; nothing where that cannot be asked for. */
void fetchAhead([[maybe_unused]] const void* begin, [[maybe_unused]] std::size_t size)
{
#ifdef __GNUC__
    constexpr std::size_t cacheLine = 64;
    for (std::size_t offset = 0; offset < size; offset += cacheLine)
        __builtin_prefetch(static_cast<const std::byte*>(begin) + offset);
#endif
}

/** Gives each object that events speak of a number, and resolves it at its first appearance. */
class FactsGatherer
{
public:
    FactsGatherer(const Project& project, const codex::ObjectScope& scope)
        : m_project(project)
        , m_lookup(project, scope)
    {}

    TimelineFacts gather()
    {
        collectEvents();
        collectMentions();
        for (quint32 number = 0; number < m_facts.eventCount(); ++number)
            addMentions(number);
        resolveConstraints();
        for (const Map* map : objectsOf<Map>(m_project)) {
            if (!m_lookup.isHidden(*map))
                addRoutes(*map);
        }
        return std::move(m_facts);
    }

private:
    quint32 numberOf(const ContentId& id)
    {
        if (const auto known = m_thingNumbers.constFind(id); known != m_thingNumbers.cend())
            return *known;
        const auto number = static_cast<quint32>(m_facts.things.size());
        m_thingNumbers.insert(id, number);
        m_facts.things.push_back(resolved(id));
        return number;
    }

    TimelineFacts::Thing resolved(const ContentId& id) const
    {
        const ContentObject* object = m_lookup.find(id);
        TimelineFacts::Thing thing;
        thing.id = id;
        thing.name = entityName(object);
        thing.exists = object != nullptr;
        thing.isHidden = object && m_lookup.isHidden(*object);
        if (const auto* entity = core::content::objectCast<Entity>(object))
            thing.lifespan = entity->lifespan();
        return thing;
    }

    // Events lie about in memory, and waiting for them is most of the work. Each is fetched ahead, first what
    // stands in it, then its list of participants.

    void collectEvents()
    {
        const auto events = m_project.objectsOfKind(TimelineEvent::staticKind);
        m_facts.events.reserve(events.size());
        m_sources.reserve(events.size());
        for (std::size_t position = 0; position < events.size(); ++position) {
            if (position + eventsAhead < events.size())
                fetchAhead(events[position + eventsAhead], sizeof(TimelineEvent));
            if (m_lookup.isHidden(*events[position]))
                continue;
            const auto& event = static_cast<const TimelineEvent&>(*events[position]);
            const EventDetails& details = event.details();
            m_sources.push_back(&event);
            for (const auto& constraint : details.constraints)
                m_constraints.push_back({m_facts.eventCount(), constraint});
            m_mentionCount += details.participants.size() + 1;
            fetchAhead(details.participants.data(), details.participants.size() * sizeof(ContentId));
            m_facts.events.push_back(
                {event.id(),
                 {details.startMinute, event.endMinute()},
                 TimelineFacts::noPlace,
                 static_cast<quint32>(position)});
        }
    }

    void collectMentions()
    {
        m_mentions.reserve(m_mentionCount);
        m_firstMentions.reserve(m_facts.events.size() + 1);
        for (quint32 number = 0; number < m_facts.eventCount(); ++number) {
            const EventDetails& details = m_sources[number]->details();
            m_firstMentions.push_back(m_mentions.size());
            m_mentions.push_back(details.locationId);
            m_mentions.insert(m_mentions.end(), details.participants.begin(), details.participants.end());
        }
        m_firstMentions.push_back(m_mentions.size());
        m_facts.participants.reserve(m_mentions.size());
        m_facts.firstParticipants.reserve(m_facts.events.size() + 1);
    }

    void addMentions(quint32 number)
    {
        const auto mentions =
            std::span(m_mentions).first(m_firstMentions[number + 1]).subspan(m_firstMentions[number]);
        if (!mentions.front().isNull())
            m_facts.events[number].place = numberOf(mentions.front());
        for (const ContentId& id : mentions.subspan(1)) {
            if (!id.isNull())
                addParticipant(number, numberOf(id));
        }
        m_facts.firstParticipants.push_back(static_cast<quint32>(m_facts.participants.size()));
    }

    void addParticipant(quint32 eventNumber, quint32 participant)
    {
        m_lastEventOf.resize(m_facts.things.size(), notSeen);
        if (m_facts.things[participant].isHidden || m_lastEventOf[participant] == eventNumber)
            return;
        m_lastEventOf[participant] = eventNumber;
        m_facts.participants.push_back(participant);
    }

    /** Once all events are known, which stand in the order of their ids. */
    void resolveConstraints()
    {
        const std::span<const TimelineFacts::Event> events(m_facts.events);
        for (const auto& [event, constraint] : m_constraints) {
            m_facts.firstConstraints.resize(event + 1, static_cast<quint32>(m_facts.constraints.size()));
            const auto other =
                std::ranges::lower_bound(events, constraint.otherId, {}, &TimelineFacts::Event::id);
            const auto number = static_cast<quint32>(other - events.begin());
            if (other != events.end() && other->id == constraint.otherId && number != event)
                m_facts.constraints.push_back({number, constraint.kind});
        }
        m_facts.firstConstraints.resize(events.size() + 1, static_cast<quint32>(m_facts.constraints.size()));
    }

    void addRoutes(const Map& map)
    {
        for (const auto& route : map.routes()) {
            const double speed = travelSettingsFor(map, route).travelSpeedPerHour.value_or(0);
            if (!(speed > 0) || !(route.distance >= 0))
                continue;
            // Places that no event speaks of have no number, and no journey to them is ever looked for.
            const auto from = m_thingNumbers.constFind(route.fromEntityId);
            const auto to = m_thingNumbers.constFind(route.toEntityId);
            if (from == m_thingNumbers.cend() || to == m_thingNumbers.cend() || *from == *to)
                continue;
            if (!m_facts.things[*from].isHidden && !m_facts.things[*to].isHidden)
                m_facts.routes.add(*from, *to, route.distance / speed * minutesPerHour);
        }
    }

    static constexpr quint32 notSeen = 0xffff'ffff;

    const Project& m_project;
    codex::ScopedLookup m_lookup;
    TimelineFacts m_facts;
    /** With the numbers of their events. */
    std::vector<std::pair<quint32, core::timeline::RelativeConstraint>> m_constraints;
    /** The events by number. */
    std::vector<const TimelineEvent*> m_sources;
    /** The place of every event, null for none, and behind it its participants. */
    std::vector<ContentId> m_mentions;
    std::size_t m_mentionCount = 0;
    /** Where the mentions of each event begin, and where those of the last end. */
    std::vector<std::size_t> m_firstMentions;
    QHash<ContentId, quint32> m_thingNumbers;
    /** By number of the thing, so that a second mention in one event is noticed. */
    std::vector<quint32> m_lastEventOf;
};

} // namespace

bool overlaps(const TimeSpan& left, const TimeSpan& right)
{
    if (left.isMoment() && right.isMoment())
        return left.start == right.start;
    if (left.isMoment())
        return right.start <= left.start && left.start < right.end;
    if (right.isMoment())
        return left.start <= right.start && right.start < left.end;
    return left.start < right.end && right.start < left.end;
}

void RouteTable::add(quint32 from, quint32 to, double minutes)
{
    if (std::isnan(minutes))
        return;
    const quint64 key = routeKey(from, to);
    const double fastest = std::min(minutes, m_minutes.value(key, minutes));
    m_minutes.insert(key, fastest);
    m_longest.resize(std::max<std::size_t>(m_longest.size(), std::max(from, to) + 1), 0);
    for (const quint32 place : {from, to})
        m_longest[place] = std::max(m_longest[place], fastest);
}

std::optional<double> RouteTable::minutesBetween(quint32 from, quint32 to) const
{
    const auto route = m_minutes.constFind(routeKey(from, to));
    return route == m_minutes.cend() ? std::nullopt : std::optional(*route);
}

TimelineFacts gatherFacts(const Project& project, const codex::ObjectScope& scope)
{
    return FactsGatherer(project, scope).gather();
}

} // namespace tw::app::timeline
