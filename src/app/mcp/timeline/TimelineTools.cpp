#include "app/mcp/timeline/TimelineTools.h"

#include "app/mcp/references/ColorArgument.h"
#include "app/mcp/registry/Display.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/UndoStep.h"
#include "core/timeline/TimelineCommands.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::project::Project;
using core::timeline::Timeline;
using core::timeline::TimelineEra;

namespace {

using EraList = std::vector<TimelineEra>;

/** The eras after one action, and what the answer says. */
struct EraChange
{
    EraList eras;
    QString answer;
};

QStringList namesOf(const EraList& eras)
{
    QStringList names;
    for (const TimelineEra& era : eras)
        names += era.name;
    return names;
}

Result<void> checkNewEraName(const EraList& eras, const QString& name)
{
    if (auto checked = checkNameText(name); !checked)
        return checked;
    if (countNamed(namesOf(eras), name) > 0)
        return Failure{u"An era named '%1' already exists."_s.arg(name)};
    return {};
}

Result<EraChange> addEra(const Project& project, const ToolArguments& arguments)
{
    EraList eras = project.timelineEras();
    TimelineEra era;
    era.name = arguments.text(u"name").trimmed();
    if (auto checked = checkNewEraName(eras, era.name); !checked)
        return Failure{checked.message()};
    if (arguments.text(u"start").isEmpty() || arguments.text(u"end").isEmpty())
        return Failure{u"manage_eras needs \"start\" and \"end\" to add an era."_s};
    const auto start = readDate(project, arguments.text(u"start"));
    if (!start)
        return Failure{start.message()};
    const auto end = readDate(project, arguments.text(u"end"));
    if (!end)
        return Failure{end.message()};
    if (end.value() < start.value())
        return Failure{u"The end date '%1' is before the era's start."_s.arg(arguments.text(u"end"))};
    const auto color = readColor(arguments);
    if (!color)
        return Failure{color.message()};
    era.color = color.value();
    era.startMinute = start.value();
    era.endMinute = end.value();
    eras.push_back(era);
    return EraChange{
        std::move(eras), u"Added era '%1' (%2 to %3)."_s.arg(
                             era.name, dateText(project, era.startMinute), dateText(project, era.endMinute))};
}

Result<EraChange> removeEra(const Project& project, const ToolArguments& arguments)
{
    EraList eras = project.timelineEras();
    const auto chosen = chooseByName(namesOf(eras), arguments.text(u"name"), u"era"_s);
    if (!chosen)
        return Failure{chosen.message()};
    const QString name = eras[chosen.value()].name;
    eras.erase(eras.begin() + static_cast<std::ptrdiff_t>(chosen.value()));
    return EraChange{std::move(eras), u"Removed era '%1'."_s.arg(name)};
}

Result<EraChange> renameEra(const Project& project, const ToolArguments& arguments)
{
    EraList eras = project.timelineEras();
    const auto chosen = chooseByName(namesOf(eras), arguments.text(u"name"), u"era"_s);
    if (!chosen)
        return Failure{chosen.message()};
    const QString former = eras[chosen.value()].name;
    const QString name = arguments.text(u"new_name").trimmed();
    if (name.isEmpty())
        return Failure{u"manage_eras needs \"new_name\" to rename an era."_s};
    EraList others = eras;
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(chosen.value()));
    if (auto checked = checkNewEraName(others, name); !checked)
        return Failure{checked.message()};
    if (name == former)
        return EraChange{std::move(eras), u"Era '%1' already matches; nothing changed."_s.arg(name)};
    eras[chosen.value()].name = name;
    return EraChange{std::move(eras), u"Renamed era '%1' to '%2'."_s.arg(former, name)};
}

Result<EraChange> eraChange(const Project& project, const ToolArguments& arguments)
{
    const QString action = arguments.text(u"action", u"add"_s);
    if (action == u"remove")
        return removeEra(project, arguments);
    return action == u"rename" ? renameEra(project, arguments) : addEra(project, arguments);
}

} // namespace

McpToolResult updateTimeline(ToolContext& context, const ToolArguments& arguments)
{
    const auto timeline = findForChange<Timeline>(context.workspace, arguments, u"title");
    if (!timeline)
        return McpToolResult::failure(timeline.message());
    const QString title = arguments.text(u"new_title").trimmed();
    const QString former = timeline.value()->title();
    if (const auto checked = checkRename(context.workspace.project(), *timeline.value(), title); !checked)
        return McpToolResult::failure(checked.message());
    if (title == former)
        return McpToolResult::success(u"Timeline '%1' already matches; nothing changed."_s.arg(title));
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: rename timeline"_s, [&] {
        context.workspace.undoStack().push(
            std::make_unique<core::timeline::SetTimelineTitleCommand>(*timeline.value(), title));
        return McpToolResult::success(u"Renamed timeline '%1' to '%2'."_s.arg(former, title));
    });
}

McpToolResult manageEras(ToolContext& context, const ToolArguments& arguments)
{
    Project& project = context.workspace.projectForEdit();
    auto change = eraChange(project, arguments);
    if (!change)
        return McpToolResult::failure(change.message());
    if (change.value().eras == project.timelineEras())
        return McpToolResult::success(change.value().answer);
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: manage eras"_s, [&] {
        context.workspace.undoStack().push(std::make_unique<core::timeline::SetTimelineErasCommand>(
            project, std::move(change.value().eras)));
        return McpToolResult::success(change.value().answer);
    });
}

} // namespace tw::app::mcp
