#pragma once

#include "app/timeline/ContinuityValidator.h"
#include "core/entity/Entity.h"
#include "core/timeline/TimelineEvent.h"

#include <QHash>

#include <optional>
#include <span>
#include <vector>

namespace tw::app::timeline {

/** A stretch of story time, its end not before its start; a moment when both are equal. */
struct TimeSpan
{
    core::calendar::StoryInstant start = 0;
    core::calendar::StoryInstant end = 0;

    [[nodiscard]] bool isMoment() const { return start == end; }
};

/**
 * Spans that merely touch do not overlap; a moment overlaps the span that it stands in or at the start of,
 * and an equal moment.
 */
[[nodiscard]] bool overlaps(const TimeSpan& left, const TimeSpan& right);

/** How long direct journeys take. Places are numbers in TimelineFacts::things. */
class RouteTable
{
public:
    /** Of several routes between two places the fastest counts. */
    void add(quint32 from, quint32 to, double minutes);

    [[nodiscard]] bool isEmpty() const { return m_minutes.isEmpty(); }
    /** None without a direct route. */
    [[nodiscard]] std::optional<double> minutesBetween(quint32 from, quint32 to) const;
    /** The longest of the routes that end at a place; 0 without one. */
    [[nodiscard]] double longestAt(quint32 place) const
    {
        return place < m_longest.size() ? m_longest[place] : 0;
    }

private:
    QHash<quint64, double> m_minutes;
    /** By place. Never too short; longer than need be when a faster route joined the same places later. */
    std::vector<double> m_longest;
};

/**
 * What the validator needs of a project, resolved once and numbered: a copy that may be looked through on any
 * thread. Hidden events and participants are left out.
 */
struct TimelineFacts
{
    static constexpr quint32 noPlace = 0xffff'ffff;

    /** Whatever an event refers to as a participant or a place. */
    struct Thing
    {
        core::ContentId id;
        QString name;
        bool exists = false;
        bool isHidden = false;
        core::entity::Lifespan lifespan;
    };

    struct Constraint
    {
        /** Number of the other event. */
        quint32 other = 0;
        core::timeline::ConstraintKind kind = core::timeline::ConstraintKind::StartsAfter;
    };

    struct Event
    {
        core::ContentId id;
        TimeSpan span;
        quint32 place = noPlace;
        /** Among the project's objects of its kind when the facts were gathered. */
        quint32 position = 0;
    };

    /** Each once, in the order of first appearance. */
    [[nodiscard]] std::span<const quint32> participantsOf(quint32 event) const
    {
        const quint32 first = firstParticipants[event];
        return std::span(participants).subspan(first, firstParticipants[event + 1] - first);
    }
    [[nodiscard]] std::span<const Constraint> constraintsOf(quint32 event) const
    {
        const quint32 first = firstConstraints[event];
        return std::span(constraints).subspan(first, firstConstraints[event + 1] - first);
    }
    [[nodiscard]] quint32 eventCount() const { return static_cast<quint32>(events.size()); }

    std::vector<Event> events;
    /**
     * Where those of each event begin in `participants` and `constraints`, and where those of the last end.
     * Apart from the events, so that all of it stays near the processor.
     */
    std::vector<quint32> firstParticipants{0};
    std::vector<quint32> firstConstraints{0};
    /** Numbers of things, of all events. */
    std::vector<quint32> participants;
    std::vector<Constraint> constraints;
    std::vector<Thing> things;
    RouteTable routes;
};

[[nodiscard]] TimelineFacts gatherFacts(
    const core::project::Project& project, const codex::ObjectScope& scope);

} // namespace tw::app::timeline
