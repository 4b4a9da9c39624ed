#include "app/mcp/timeline/EventTools.h"

#include "app/mcp/registry/CategoryFinder.h"
#include "app/mcp/registry/Display.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/timeline/EventArguments.h"
#include "core/content/ContentCommands.h"
#include "core/timeline/TimelineCommands.h"

#include <algorithm>
#include <limits>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::content::AddObjectCommand;
using core::content::ContentKind;
using core::project::Project;
using core::timeline::EventDetails;
using core::timeline::Timeline;
using core::timeline::TimelineEvent;
using workspace::Workspace;

namespace {

/** The timeline that events go to when none is named. */
const Timeline* firstTimeline(const Project& project)
{
    std::vector<const Timeline*> timelines = objectsOf<Timeline>(project);
    std::erase_if(timelines, [](const Timeline* timeline) { return timeline->isAiExcluded(); });
    const auto first = std::ranges::min_element(timelines, {}, &Timeline::sortIndex);
    return first == timelines.end() ? nullptr : *first;
}

/**
 * The named timeline, the first one without a name; null when one has to be made. It may be locked: events
 * are none of its own data.
 */
Result<ContentId> timelineFor(const Workspace& workspace, const ToolArguments& arguments)
{
    if (const QString name = arguments.text(u"timeline"); !name.isEmpty()) {
        const auto found = resolveByName(workspace, name, kindWord(ContentKind::Timeline), Purpose::Use);
        if (!found)
            return Failure{found.message()};
        return found.value().object->id();
    }
    const Timeline* first = firstTimeline(workspace.project());
    return first ? first->id() : ContentId();
}

/** Behind all others where events are shown in order. */
qint32 nextOrdinal(const Project& project, const ContentId& timelineId)
{
    constexpr qint32 last = std::numeric_limits<qint32>::max();
    qint32 next = 0;
    for (const TimelineEvent* event : objectsOf<TimelineEvent>(project)) {
        const EventDetails& details = event->details();
        if (details.timelineId == timelineId && details.ordinal >= next)
            next = details.ordinal < last ? details.ordinal + 1 : last;
    }
    return next;
}

EntityNames entityNames(Workspace& workspace, const ToolArguments& arguments)
{
    const bool creates = arguments.boolean(u"create_missing_entities");
    return EntityNames(workspace, creates ? MissingEntities::Create : MissingEntities::Refuse);
}

/** "Created 2 stub entity(ies): Ann, Bert." */
QString stubText(const EntityNames& entities)
{
    return u"Created %1 stub entity(ies): %2."_s.arg(
        QString::number(entities.stubs().size()), entities.stubs().join(u", "_s));
}

QString withStubs(const QString& answer, const EntityNames& entities)
{
    return entities.stubs().isEmpty() ? answer : answer + u' ' + stubText(entities);
}

} // namespace

McpToolResult createTimelineEvent(ToolContext& context, const ToolArguments& arguments)
{
    Workspace& workspace = context.workspace;
    Project& project = workspace.projectForEdit();
    EventDetails details;
    details.title = arguments.text(u"title").trimmed();
    if (const auto checked = checkNewName(project, ContentKind::TimelineEvent, details.title); !checked)
        return McpToolResult::failure(checked.message());
    if (arguments.text(u"date").isEmpty())
        return McpToolResult::failure(u"create_timeline_event needs \"title\" and \"date\"."_s);
    const auto timeline = timelineFor(workspace, arguments);
    if (!timeline)
        return McpToolResult::failure(timeline.message());
    EntityNames entities = entityNames(workspace, arguments);
    auto complete = withArguments(workspace, std::move(details), arguments, entities, {});
    if (!complete)
        return McpToolResult::failure(complete.message());

    return applyAsUndoStep(workspace, context.changeLog, u"MCP: create timeline event"_s, [&] {
        core::undo::UndoStack& history = workspace.undoStack();
        EventDetails& event = complete.value();
        event.timelineId = timeline.value();
        if (event.timelineId.isNull()) {
            event.timelineId = ContentId::create();
            history.push(std::make_unique<AddObjectCommand>(
                project, std::make_unique<Timeline>(event.timelineId, u"Timeline"_s)));
        }
        entities.push();
        event.ordinal = nextOrdinal(project, event.timelineId);
        const QString answer =
            u"Created timeline event '%1' on %2."_s.arg(event.title, dateText(project, event.startMinute));
        history.push(std::make_unique<AddObjectCommand>(
            project, std::make_unique<TimelineEvent>(ContentId::create(), std::move(event))));
        return McpToolResult::success(withStubs(answer, entities));
    });
}

McpToolResult createMissingEntities(ToolContext& context, const ToolArguments& arguments)
{
    Workspace& workspace = context.workspace;
    const QStringList names = arguments.textList(u"names");
    if (names.isEmpty())
        return McpToolResult::failure(u"create_missing_entities needs \"names\"."_s);
    core::CategoryId categoryId;
    if (const QString category = arguments.text(u"category"); !category.isEmpty()) {
        const auto resolved = resolveCategory(workspace, category);
        if (!resolved)
            return McpToolResult::failure(resolved.message());
        categoryId = resolved.value();
    }
    EntityNames entities(workspace, MissingEntities::Create, categoryId);
    if (const auto resolved = entities.resolve(names); !resolved)
        return McpToolResult::failure(resolved.message());
    if (entities.stubs().isEmpty())
        return McpToolResult::success(u"Every name already exists; nothing changed."_s);
    return applyAsUndoStep(workspace, context.changeLog, u"MCP: create missing entities"_s, [&] {
        entities.push();
        return McpToolResult::success(stubText(entities));
    });
}

McpToolResult updateTimelineEvent(ToolContext& context, const ToolArguments& arguments)
{
    Workspace& workspace = context.workspace;
    const auto found = findForChange<TimelineEvent>(workspace, arguments, u"title");
    if (!found)
        return McpToolResult::failure(found.message());
    TimelineEvent& event = *found.value();
    EventDetails details = event.details();
    if (const auto title = arguments.givenText(u"new_title")) {
        if (const auto checked = checkRename(workspace.project(), event, *title); !checked)
            return McpToolResult::failure(checked.message());
        details.title = title->trimmed();
    }
    if (!arguments.text(u"timeline").isEmpty()) {
        const auto timeline = timelineFor(workspace, arguments);
        if (!timeline)
            return McpToolResult::failure(timeline.message());
        details.timelineId = timeline.value();
    }
    EntityNames entities = entityNames(workspace, arguments);
    auto complete = withArguments(workspace, std::move(details), arguments, entities, event.id());
    if (!complete)
        return McpToolResult::failure(complete.message());
    const QString title = complete.value().title;
    if (complete.value() == event.details())
        return McpToolResult::success(u"Timeline event '%1' already matches; nothing changed."_s.arg(title));
    return applyAsUndoStep(workspace, context.changeLog, u"MCP: update timeline event"_s, [&] {
        entities.push();
        workspace.undoStack().push(
            std::make_unique<core::timeline::SetTimelineEventCommand>(event, std::move(complete).value()));
        return McpToolResult::success(withStubs(u"Updated timeline event '%1'."_s.arg(title), entities));
    });
}

} // namespace tw::app::mcp
