#include "app/mcp/references/ReferenceNames.h"
#include "app/mcp/registry/Display.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/Refusals.h"
#include "app/mcp/timeline/EventArguments.h"
#include "app/mcp/timeline/TimelineTools.h"
#include "core/timeline/Timeline.h"

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::project::Project;
using core::timeline::EventDetails;
using core::timeline::RelativeConstraint;
using core::timeline::Timeline;
using core::timeline::TimelineEra;
using core::timeline::TimelineEvent;
using workspace::MountedLibrary;
using workspace::Workspace;

namespace {

QString detail(const QString& what, const QString& value)
{
    return value.isEmpty() ? QString() : u"\n  %1: %2"_s.arg(what, value);
}

QString constraintsText(const Workspace& workspace, const EventDetails& details)
{
    QStringList texts;
    for (const RelativeConstraint& constraint : details.constraints) {
        if (const QString word = constraintWord(constraint.kind); !word.isEmpty())
            texts += u"%1 %2"_s.arg(word, referenceName(workspace, constraint.otherId));
    }
    return texts.join(u", "_s);
}

/** The events of one project, hidden ones left out, as they follow each other in the story. */
std::vector<const TimelineEvent*> eventsInOrder(const Project& project)
{
    std::vector<const TimelineEvent*> events = objectsOf<TimelineEvent>(project);
    std::erase_if(events, [](const TimelineEvent* event) { return event->isAiExcluded(); });
    std::ranges::stable_sort(events, {}, [](const TimelineEvent* event) {
        return std::pair(event->details().startMinute, event->details().ordinal);
    });
    return events;
}

/** Writes the timelines of one project: the open one, or a mounted library. */
class TimelineWriter
{
public:
    /** The project is the library's where there is one, else the workspace's. */
    TimelineWriter(const Workspace& workspace, const MountedLibrary* library, ValueDisplay& display)
        : m_workspace(workspace)
        , m_project(library ? *library->project : workspace.project())
        , m_library(library)
        , m_display(display)
        , m_events(eventsInOrder(m_project))
    {}

    void writeAll(QStringList& lines)
    {
        std::vector<const Timeline*> timelines = objectsOf<Timeline>(m_project);
        std::ranges::stable_sort(timelines, {}, &Timeline::sortIndex);
        for (const Timeline* timeline : timelines) {
            if (!timeline->isAiExcluded())
                write(*timeline, lines);
        }
        // Only the timeline itself is withheld: its events have flags of their own.
        writeAnyEvents(
            u"Events of timelines excluded from AI"_s,
            [this](const TimelineEvent* event) {
                const auto* const timeline = m_project.findAs<Timeline>(event->details().timelineId);
                return timeline && timeline->isAiExcluded();
            },
            lines);
        writeAnyEvents(
            u"Events without a timeline"_s,
            [this](const TimelineEvent* event) {
                return !m_project.findAs<Timeline>(event->details().timelineId);
            },
            lines);
    }

    void write(const Timeline& timeline, QStringList& lines)
    {
        const auto isOfTimeline = [&timeline](const TimelineEvent* event) {
            return event->details().timelineId == timeline.id();
        };
        writeEvents(
            marked(u"Timeline '%1'"_s.arg(timeline.title())) +
                detail(u"description"_s, m_display.shown(timeline.description())),
            isOfTimeline, lines);
    }

private:
    [[nodiscard]] QString marked(const QString& text) const
    {
        return m_library ? u"%1. %2"_s.arg(text, mountedMark(m_library->name)) : text;
    }

    /** Nothing at all when there are no such events. */
    template <class Predicate>
    void writeAnyEvents(const QString& text, Predicate isWanted, QStringList& lines)
    {
        if (std::ranges::any_of(m_events, isWanted))
            writeEvents(marked(text), isWanted, lines);
    }

    template <class Predicate>
    void writeEvents(const QString& heading, Predicate isWanted, QStringList& lines)
    {
        lines += heading;
        bool isEmpty = true;
        for (const TimelineEvent* event : m_events) {
            if (!isWanted(event))
                continue;
            isEmpty = false;
            lines += eventText(*event);
        }
        if (isEmpty)
            lines += u"(no events)"_s;
    }

    /** In the calendar of the open project, which is the one that tools read dates in. */
    QString datesText(const TimelineEvent& event) const
    {
        const Project& project = m_workspace.project();
        const EventDetails& details = event.details();
        const QString start = dateText(project, details.startMinute);
        const QString qualified =
            details.dateQualifier.isEmpty() ? start : u"%1 %2"_s.arg(details.dateQualifier, start);
        return details.durationMinutes > 0
                   ? u"%1 to %2"_s.arg(qualified, dateText(project, event.endMinute()))
                   : qualified;
    }

    QString eventText(const TimelineEvent& event)
    {
        const EventDetails& details = event.details();
        const QString title =
            event.title().isEmpty() ? u"Untitled event (id %1)"_s.arg(event.id().toString()) : event.title();
        return u"- %1: %2"_s.arg(title, datesText(event)) +
               detail(u"location"_s, referenceName(m_workspace, details.locationId)) +
               detail(u"participants"_s, referenceNames(m_workspace, details.participants)) +
               detail(u"part of"_s, referenceName(m_workspace, details.parentId)) +
               detail(u"scenes"_s, referenceNames(m_workspace, details.sceneIds)) +
               detail(u"constraints"_s, constraintsText(m_workspace, details)) +
               detail(u"label"_s, details.styleLabel) + detail(u"color"_s, details.styleColor) +
               detail(u"description"_s, m_display.shown(details.description));
    }

    const Workspace& m_workspace;
    const Project& m_project;
    const MountedLibrary* m_library;
    ValueDisplay& m_display;
    std::vector<const TimelineEvent*> m_events;
};

QStringList eraLines(const Project& project)
{
    if (project.timelineEras().empty())
        return {u"Named eras: none."_s};
    QStringList lines{u"Named eras:"_s};
    for (const TimelineEra& era : project.timelineEras()) {
        const QString color = era.color.isEmpty() ? QString() : u" (%1)"_s.arg(era.color);
        lines += u"- %1: %2 to %3"_s.arg(
                     era.name, dateText(project, era.startMinute), dateText(project, era.endMinute)) +
                 color;
    }
    return lines;
}

} // namespace

McpToolResult getTimeline(ToolContext& context, const ToolArguments& arguments)
{
    const Workspace& workspace = context.workspace;
    ValueDisplay display(arguments.boolean(u"full") ? Shortening::None : Shortening::Long);
    QStringList lines;
    if (arguments.text(u"timeline").isEmpty() && arguments.text(u"id").isEmpty()) {
        TimelineWriter(workspace, nullptr, display).writeAll(lines);
        for (const MountedLibrary& library : workspace.libraries())
            TimelineWriter(workspace, &library, display).writeAll(lines);
        if (lines.isEmpty())
            lines += u"There are no timelines in this project."_s;
    } else {
        const auto found = findToRead<Timeline>(workspace, arguments, u"timeline");
        if (!found)
            return McpToolResult::failure(found.message());
        TimelineWriter(workspace, found.value().library, display).write(*found.value(), lines);
    }
    lines += eraLines(workspace.project());
    return McpToolResult::success(lines.join(u'\n') + display.note(u"get_timeline"_s));
}

} // namespace tw::app::mcp
