#include "app/timeline/ContinuityValidator.h"

#include "app/timeline/PairSweep.h"

#include <QCoreApplication>

#include <algorithm>
#include <numeric>

namespace tw::app::timeline {

using core::timeline::ConstraintKind;
using Event = TimelineFacts::Event;
using Thing = TimelineFacts::Thing;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Continuity", text);
}

/** None for kinds without a meaning, which always hold. */
const char* phraseOf(ConstraintKind kind)
{
    switch (kind) {
    case ConstraintKind::StartsAfter:
        return QT_TRANSLATE_NOOP("Continuity", "must start after");
    case ConstraintKind::EndsBefore:
        return QT_TRANSLATE_NOOP("Continuity", "must end before");
    case ConstraintKind::HappensDuring:
        return QT_TRANSLATE_NOOP("Continuity", "must happen during");
    }
    return nullptr;
}

bool holds(ConstraintKind kind, const TimeSpan& span, const TimeSpan& other)
{
    switch (kind) {
    case ConstraintKind::StartsAfter:
        return span.start >= other.end;
    case ConstraintKind::EndsBefore:
        return span.end <= other.start;
    case ConstraintKind::HappensDuring:
        return other.start <= span.start && span.end <= other.end;
    }
    return true;
}

/** The stages write into one list, each after the other. */
class ConflictFinder
{
public:
    explicit ConflictFinder(const TimelineFacts& facts)
        : m_facts(facts)
        , m_itineraries(facts)
    {}

    std::vector<ContinuityConflict> find()
    {
        // Two stages look at every participation, and mostly nobody is missing or mortal.
        if (std::ranges::any_of(m_facts.things, [](const Thing& thing) { return !thing.exists; }))
            findMissing();
        const std::vector<quint32> participants = participantsById();
        for (const quint32 participant : participants)
            findClashes(participant);
        if (std::ranges::any_of(m_facts.things, [](const Thing& thing) {
                return thing.lifespan != core::entity::Lifespan();
            }))
            findOutsideLifespans();
        if (!m_facts.routes.isEmpty()) {
            for (const quint32 participant : participants)
                findHurries(participant);
        }
        findBrokenConstraints();
        return std::move(m_conflicts);
    }

private:
    void add(QString message, std::vector<core::ContentId> ids)
    {
        m_conflicts.push_back({std::move(message), std::move(ids)});
    }

    std::vector<quint32> participantsById() const
    {
        std::vector<quint32> numbers(m_facts.things.size());
        std::iota(numbers.begin(), numbers.end(), 0);
        std::erase_if(numbers, [this](quint32 number) { return !m_facts.things[number].exists; });
        std::ranges::sort(numbers, {}, [this](quint32 number) { return m_facts.things[number].id; });
        return numbers;
    }

    void findMissing()
    {
        for (quint32 number = 0; number < m_facts.eventCount(); ++number) {
            const Event& event = m_facts.events[number];
            if (event.place != TimelineFacts::noPlace && !m_facts.things[event.place].exists) {
                add(translated(QT_TRANSLATE_NOOP(
                                   "Continuity", "\"%1\" happens at a location that no longer exists."))
                        .arg(event.name),
                    {event.id});
            }
            for (const quint32 participant : m_facts.participantsOf(number)) {
                if (m_facts.things[participant].exists)
                    continue;
                add(translated(
                        QT_TRANSLATE_NOOP("Continuity", "\"%1\" lists a participant that no longer exists."))
                        .arg(event.name),
                    {event.id});
            }
        }
    }

    void findClashes(quint32 participant)
    {
        for (const EventPair& pair : clashes(m_itineraries.of(participant))) {
            const Event& first = m_facts.events[pair.first];
            const Event& second = m_facts.events[pair.second];
            add(translated(QT_TRANSLATE_NOOP("Continuity", "%1 is in two places at once: \"%2\" and \"%3\"."))
                    .arg(m_facts.things[participant].name, first.name, second.name),
                {first.id, second.id});
        }
    }

    void findOutsideLifespans()
    {
        for (quint32 number = 0; number < m_facts.eventCount(); ++number) {
            const Event& event = m_facts.events[number];
            for (const quint32 participant : m_facts.participantsOf(number)) {
                const Thing& thing = m_facts.things[participant];
                if (thing.lifespan.birth && event.span.start < *thing.lifespan.birth) {
                    add(translated(
                            QT_TRANSLATE_NOOP("Continuity", "%1 takes part in \"%2\" before being born."))
                            .arg(thing.name, event.name),
                        {event.id});
                }
                if (thing.lifespan.death && event.span.end > *thing.lifespan.death) {
                    add(translated(QT_TRANSLATE_NOOP("Continuity", "%1 takes part in \"%2\" after death."))
                            .arg(thing.name, event.name),
                        {event.id});
                }
            }
        }
    }

    void findHurries(quint32 participant)
    {
        for (const EventPair& pair : hurries(m_itineraries.of(participant), m_facts.routes)) {
            const Event& first = m_facts.events[pair.first];
            const Event& second = m_facts.events[pair.second];
            const bool isFirstEarlier = first.span.start <= second.span.start;
            const Event& earlier = isFirstEarlier ? first : second;
            const Event& later = isFirstEarlier ? second : first;
            add(translated(
                    QT_TRANSLATE_NOOP(
                        "Continuity", "%1 cannot travel from %2 to %3 in time between \"%4\" and \"%5\"."))
                    .arg(
                        m_facts.things[participant].name, m_facts.things[earlier.place].name,
                        m_facts.things[later.place].name, earlier.name, later.name),
                {earlier.id, later.id});
        }
    }

    void findBrokenConstraints()
    {
        for (quint32 number = 0; number < m_facts.eventCount(); ++number) {
            const Event& event = m_facts.events[number];
            for (const auto& constraint : m_facts.constraintsOf(number)) {
                const Event& other = m_facts.events[constraint.other];
                if (holds(constraint.kind, event.span, other.span))
                    continue;
                add(translated(QT_TRANSLATE_NOOP("Continuity", "\"%1\" %2 \"%3\", but does not."))
                        .arg(event.name, translated(phraseOf(constraint.kind)), other.name),
                    {event.id, other.id});
            }
        }
    }

    const TimelineFacts& m_facts;
    Itineraries m_itineraries;
    std::vector<ContinuityConflict> m_conflicts;
};

} // namespace

std::vector<ContinuityConflict> findConflicts(const TimelineFacts& facts)
{
    return ConflictFinder(facts).find();
}

std::vector<ContinuityConflict> validateTimeline(
    const core::project::Project& project, const ContinuityScope& scope)
{
    return findConflicts(gatherFacts(project, scope));
}

} // namespace tw::app::timeline
