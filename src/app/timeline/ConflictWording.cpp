#include "app/timeline/ConflictFinder.h"

#include <QCoreApplication>

namespace tw::app::timeline {

using core::project::Project;
using core::timeline::ConstraintKind;
using core::timeline::TimelineEvent;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Continuity", text);
}

QString phraseOf(ConstraintKind kind)
{
    switch (kind) {
    case ConstraintKind::StartsAfter:
        return translated(QT_TRANSLATE_NOOP("Continuity", "must start after"));
    case ConstraintKind::EndsBefore:
        return translated(QT_TRANSLATE_NOOP("Continuity", "must end before"));
    case ConstraintKind::HappensDuring:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("Continuity", "must happen during"));
}

/** Looks up names of events; only of those that a conflict is about. */
class Wording
{
public:
    Wording(const Project& project, const TimelineFacts& facts)
        : m_project(project)
        , m_facts(facts)
    {}

    ContinuityConflict worded(const FoundConflict& conflict) const
    {
        const core::ContentId& id = m_facts.events[conflict.event].id;
        const core::ContentId& otherId = m_facts.events[conflict.other].id;
        switch (conflict.kind) {
        case ConflictKind::TwoPlaces:
        case ConflictKind::Hurry:
        case ConflictKind::BrokenConstraint:
            return {sentence(conflict), {id, otherId}};
        default:
            return {sentence(conflict), {id}};
        }
    }

private:
    QString sentence(const FoundConflict& conflict) const
    {
        const QString event = eventName(conflict.event);
        const QString& who = m_facts.things[conflict.participant].name;
        switch (conflict.kind) {
        case ConflictKind::MissingPlace:
            return translated(
                       QT_TRANSLATE_NOOP("Continuity", "\"%1\" happens at a location that no longer exists."))
                .arg(event);
        case ConflictKind::MissingParticipant:
            return translated(
                       QT_TRANSLATE_NOOP("Continuity", "\"%1\" lists a participant that no longer exists."))
                .arg(event);
        case ConflictKind::TwoPlaces:
            return translated(
                       QT_TRANSLATE_NOOP("Continuity", "%1 is in two places at once: \"%2\" and \"%3\"."))
                .arg(who, event, eventName(conflict.other));
        case ConflictKind::BeforeBirth:
            return translated(QT_TRANSLATE_NOOP("Continuity", "%1 takes part in \"%2\" before being born."))
                .arg(who, event);
        case ConflictKind::AfterDeath:
            return translated(QT_TRANSLATE_NOOP("Continuity", "%1 takes part in \"%2\" after death."))
                .arg(who, event);
        case ConflictKind::Hurry:
            return translated(
                       QT_TRANSLATE_NOOP(
                           "Continuity", "%1 cannot travel from %2 to %3 in time between \"%4\" and \"%5\"."))
                .arg(
                    who, placeName(conflict.event), placeName(conflict.other), event,
                    eventName(conflict.other));
        case ConflictKind::BrokenConstraint:
            break;
        }
        return translated(QT_TRANSLATE_NOOP("Continuity", "\"%1\" %2 \"%3\", but does not."))
            .arg(event, phraseOf(conflict.constraint), eventName(conflict.other));
    }

    /** Where it stood; the long way only if it stands there no more. */
    const TimelineEvent* find(const TimelineFacts::Event& event) const
    {
        const auto events = m_project.objectsOfKind(TimelineEvent::staticKind);
        if (event.position < events.size() && events[event.position]->id() == event.id)
            return static_cast<const TimelineEvent*>(events[event.position]);
        return m_project.findAs<TimelineEvent>(event.id);
    }

    QString eventName(quint32 number) const
    {
        const TimelineEvent* const event = find(m_facts.events[number]);
        return event && !event->title().isEmpty()
                   ? event->title()
                   : translated(QT_TRANSLATE_NOOP("Continuity", "Untitled event"));
    }

    const QString& placeName(quint32 event) const { return m_facts.things[m_facts.events[event].place].name; }

    const Project& m_project;
    const TimelineFacts& m_facts;
};

} // namespace

std::vector<ContinuityConflict> wordConflicts(
    const Project& project, const TimelineFacts& facts, const std::vector<FoundConflict>& conflicts)
{
    const Wording wording(project, facts);
    std::vector<ContinuityConflict> worded;
    worded.reserve(conflicts.size());
    for (const FoundConflict& conflict : conflicts)
        worded.push_back(wording.worded(conflict));
    return worded;
}

std::vector<ContinuityConflict> validateTimeline(const Project& project, const codex::ObjectScope& scope)
{
    const TimelineFacts facts = gatherFacts(project, scope);
    return wordConflicts(project, facts, findConflicts(facts));
}

} // namespace tw::app::timeline
