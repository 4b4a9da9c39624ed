#include "app/timeline/ConflictFinder.h"

#include "app/timeline/PairSweep.h"

#include <algorithm>
#include <numeric>

namespace tw::app::timeline {

using core::timeline::ConstraintKind;
using Event = TimelineFacts::Event;
using Thing = TimelineFacts::Thing;

namespace {

/** Kinds without a meaning always hold. */
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

    std::vector<FoundConflict> find()
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
            const quint32 place = m_facts.events[number].place;
            if (place != TimelineFacts::noPlace && !m_facts.things[place].exists)
                m_conflicts.push_back({ConflictKind::MissingPlace, number});
            for (const quint32 participant : m_facts.participantsOf(number)) {
                if (!m_facts.things[participant].exists)
                    m_conflicts.push_back({ConflictKind::MissingParticipant, number});
            }
        }
    }

    void findClashes(quint32 participant)
    {
        for (const EventPair& pair : clashes(m_itineraries.of(participant)))
            m_conflicts.push_back({ConflictKind::TwoPlaces, pair.first, pair.second, participant});
    }

    void findOutsideLifespans()
    {
        for (quint32 number = 0; number < m_facts.eventCount(); ++number) {
            const TimeSpan& span = m_facts.events[number].span;
            for (const quint32 participant : m_facts.participantsOf(number)) {
                const auto& lifespan = m_facts.things[participant].lifespan;
                if (lifespan.birth && span.start < *lifespan.birth)
                    m_conflicts.push_back({ConflictKind::BeforeBirth, number, 0, participant});
                if (lifespan.death && span.end > *lifespan.death)
                    m_conflicts.push_back({ConflictKind::AfterDeath, number, 0, participant});
            }
        }
    }

    void findHurries(quint32 participant)
    {
        for (const EventPair& pair : hurries(m_itineraries.of(participant), m_facts.routes)) {
            const bool isFirstEarlier =
                m_facts.events[pair.first].span.start <= m_facts.events[pair.second].span.start;
            m_conflicts.push_back(
                {ConflictKind::Hurry, isFirstEarlier ? pair.first : pair.second,
                 isFirstEarlier ? pair.second : pair.first, participant});
        }
    }

    void findBrokenConstraints()
    {
        for (quint32 number = 0; number < m_facts.eventCount(); ++number) {
            for (const auto& [other, kind] : m_facts.constraintsOf(number)) {
                if (!holds(kind, m_facts.events[number].span, m_facts.events[other].span))
                    m_conflicts.push_back({ConflictKind::BrokenConstraint, number, other, 0, kind});
            }
        }
    }

    const TimelineFacts& m_facts;
    Itineraries m_itineraries;
    std::vector<FoundConflict> m_conflicts;
};

} // namespace

std::vector<FoundConflict> findConflicts(const TimelineFacts& facts)
{
    return ConflictFinder(facts).find();
}

} // namespace tw::app::timeline
