#include "app/timeline/LiteralTimelineCheck.h"

#include "core/entity/Entity.h"
#include "core/map/Map.h"
#include "core/timeline/TimelineEvent.h"

#include <algorithm>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace tw::test {

using core::ContentId;
using core::entity::Entity;
using core::timeline::ConstraintKind;
using core::timeline::TimelineEvent;

namespace {

using EventList = std::vector<const TimelineEvent*>;

class LiteralCheck
{
public:
    explicit LiteralCheck(const core::project::Project& project)
        : m_project(project)
        , m_events(objectsOf<TimelineEvent>(project))
    {}

    std::vector<app::timeline::ContinuityConflict> run()
    {
        missing();
        std::map<ContentId, EventList> index;
        for (const TimelineEvent* event : m_events) {
            for (const ContentId& id : participants(*event)) {
                if (m_project.contains(id))
                    index[id].push_back(event);
            }
        }
        for (const auto& [id, events] : index)
            pairs(events, [&](const auto& a, const auto& b) { twoPlaces(id, a, b); });
        lifespans();
        const std::map<std::pair<ContentId, ContentId>, double> routes = routeTable();
        for (const auto& [id, events] : index)
            pairs(events, [&](const auto& a, const auto& b) { travel(id, a, b, routes); });
        constraints();
        return m_conflicts;
    }

private:
    static std::vector<ContentId> participants(const TimelineEvent& event)
    {
        std::vector<ContentId> ids;
        for (const ContentId& id : event.details().participants) {
            if (!id.isNull() && std::ranges::find(ids, id) == ids.end())
                ids.push_back(id);
        }
        return ids;
    }

    static QString name(const TimelineEvent& event)
    {
        return event.title().isEmpty() ? u"Untitled event"_s : event.title();
    }

    QString name(const ContentId& id) const
    {
        const auto* entity = m_project.findAs<Entity>(id);
        return entity && !entity->name().isEmpty() ? entity->name() : u"An entity"_s;
    }

    void add(const QString& message, std::vector<ContentId> ids)
    {
        m_conflicts.push_back({message, std::move(ids)});
    }

    template <class Visit>
    static void pairs(const EventList& events, Visit visit)
    {
        for (std::size_t i = 0; i < events.size(); ++i) {
            for (std::size_t j = i + 1; j < events.size(); ++j)
                visit(*events[i], *events[j]);
        }
    }

    static bool overlap(const TimelineEvent& a, const TimelineEvent& b)
    {
        const qint64 a0 = a.details().startMinute;
        const qint64 a1 = a.endMinute();
        const qint64 b0 = b.details().startMinute;
        const qint64 b1 = b.endMinute();
        if (a0 == a1 && b0 == b1)
            return a0 == b0;
        if (a0 == a1)
            return b0 <= a0 && a0 < b1;
        if (b0 == b1)
            return a0 <= b0 && b0 < a1;
        return a0 < b1 && b0 < a1;
    }

    static bool areInDifferentPlaces(const TimelineEvent& a, const TimelineEvent& b)
    {
        const ContentId& left = a.details().locationId;
        const ContentId& right = b.details().locationId;
        return !left.isNull() && !right.isNull() && !(left == right);
    }

    void missing()
    {
        for (const TimelineEvent* event : m_events) {
            const ContentId& place = event->details().locationId;
            if (!place.isNull() && !m_project.contains(place))
                add(u"\"%1\" happens at a location that no longer exists."_s.arg(name(*event)),
                    {event->id()});
            for (const ContentId& id : participants(*event)) {
                if (!m_project.contains(id))
                    add(u"\"%1\" lists a participant that no longer exists."_s.arg(name(*event)),
                        {event->id()});
            }
        }
    }

    void twoPlaces(const ContentId& id, const TimelineEvent& a, const TimelineEvent& b)
    {
        if (areInDifferentPlaces(a, b) && overlap(a, b))
            add(u"%1 is in two places at once: \"%2\" and \"%3\"."_s.arg(name(id), name(a), name(b)),
                {a.id(), b.id()});
    }

    void lifespans()
    {
        for (const TimelineEvent* event : m_events) {
            for (const ContentId& id : participants(*event)) {
                const auto* entity = m_project.findAs<Entity>(id);
                if (!entity)
                    continue;
                const auto& lifespan = entity->lifespan();
                if (lifespan.birth && event->details().startMinute < *lifespan.birth)
                    add(u"%1 takes part in \"%2\" before being born."_s.arg(name(id), name(*event)),
                        {event->id()});
                if (lifespan.death && event->endMinute() > *lifespan.death)
                    add(u"%1 takes part in \"%2\" after death."_s.arg(name(id), name(*event)), {event->id()});
            }
        }
    }

    std::map<std::pair<ContentId, ContentId>, double> routeTable() const
    {
        std::map<std::pair<ContentId, ContentId>, double> routes;
        for (const auto* map : objectsOf<core::map::Map>(m_project)) {
            if (map->isAiExcluded())
                continue;
            for (const auto& route : map->routes()) {
                const double speed = map->travelSettings().travelSpeedPerHour.value_or(0);
                const ContentId& from = route.fromEntityId;
                const ContentId& to = route.toEntityId;
                if (speed <= 0 || route.distance < 0 || from.isNull() || to.isNull() || from == to)
                    continue;
                const double minutes = route.distance / speed * 60;
                const auto [entry, isNew] = routes.emplace(std::minmax(from, to), minutes);
                entry->second = std::min(entry->second, minutes);
            }
        }
        return routes;
    }

    void travel(
        const ContentId& id, const TimelineEvent& a, const TimelineEvent& b,
        const std::map<std::pair<ContentId, ContentId>, double>& routes)
    {
        if (!areInDifferentPlaces(a, b) || overlap(a, b))
            return;
        const bool isFirstEarlier = a.details().startMinute <= b.details().startMinute;
        const TimelineEvent& earlier = isFirstEarlier ? a : b;
        const TimelineEvent& later = isFirstEarlier ? b : a;
        const ContentId& from = earlier.details().locationId;
        const ContentId& to = later.details().locationId;
        const auto route = routes.find(std::minmax(from, to));
        if (route == routes.end())
            return;
        // Never below zero, but up to 64 bits without a sign.
        const quint64 available =
            static_cast<quint64>(later.details().startMinute) - static_cast<quint64>(earlier.endMinute());
        if (route->second > static_cast<double>(available))
            add(u"%1 cannot travel from %2 to %3 in time between \"%4\" and \"%5\"."_s.arg(
                    name(id), name(from), name(to), name(earlier), name(later)),
                {earlier.id(), later.id()});
    }

    void constraints()
    {
        std::map<ContentId, const TimelineEvent*> byId;
        for (const TimelineEvent* event : m_events)
            byId[event->id()] = event;
        for (const TimelineEvent* event : m_events) {
            for (const auto& [otherId, kind] : event->details().constraints) {
                if (otherId == event->id() || !byId.contains(otherId))
                    continue;
                const TimelineEvent& other = *byId.at(otherId);
                const qint64 start = event->details().startMinute;
                const qint64 otherStart = other.details().startMinute;
                QString phrase;
                if (kind == ConstraintKind::StartsAfter && start < other.endMinute())
                    phrase = u"must start after"_s;
                if (kind == ConstraintKind::EndsBefore && event->endMinute() > otherStart)
                    phrase = u"must end before"_s;
                if (kind == ConstraintKind::HappensDuring &&
                    (otherStart > start || event->endMinute() > other.endMinute()))
                    phrase = u"must happen during"_s;
                if (!phrase.isEmpty())
                    add(u"\"%1\" %2 \"%3\", but does not."_s.arg(name(*event), phrase, name(other)),
                        {event->id(), other.id()});
            }
        }
    }

    const core::project::Project& m_project;
    EventList m_events;
    std::vector<app::timeline::ContinuityConflict> m_conflicts;
};

} // namespace

std::vector<app::timeline::ContinuityConflict> literalTimelineCheck(const core::project::Project& project)
{
    return LiteralCheck(project).run();
}

} // namespace tw::test
