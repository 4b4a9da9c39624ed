#include "app/mcp/core/PropertyMigrationTool.h"

#include "app/codex/CategoryTwins.h"
#include "app/codex/PropertyMigration.h"
#include "app/mcp/core/ProjectBackup.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/workspace/Workspace.h"
#include "core/entity/Entity.h"
#include "core/project/ProjectCommands.h"

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using codex::CategoryTwins;
using codex::PropertyMove;
using codex::PropertyPlan;
using core::project::Project;

namespace {

constexpr auto appliedAnswer = "applied"_L1;
constexpr auto declinedAnswer = "declined"_L1;

QString answerOf(const Project& project)
{
    return project.propertyMigration() ? project.propertyMigration()->answer : QString();
}

void pushAnswer(workspace::Workspace& workspace, QLatin1String answer)
{
    if (answerOf(workspace.project()) == answer)
        return;
    workspace.undoStack().push(std::make_unique<core::project::SetPropertyMigrationAnswerCommand>(
        workspace.projectForEdit(), core::project::PropertyMigration{answer}));
}

QString moveLine(const Project& project, const PropertyMove& move)
{
    return u"\n- \"%1\" of the category '%2' to the entity '%3'"_s.arg(
        move.field.displayName(), project.taxonomy().category(move.from)->name,
        project.findAs<core::entity::Entity>(move.to)->name());
}

QString heldBackText(const PropertyPlan& plan)
{
    if (plan.heldBack == 0)
        return {};
    return u"\n%1 more would move, but the entity that holds the value is locked or excluded from AI."_s.arg(
        plan.heldBack);
}

const QString nothingToMove = u"Nothing to move: no category property is held by exactly one entity."_s;

McpToolResult preview(ToolContext& context)
{
    const Project& project = context.workspace.project();
    const PropertyPlan plan = codex::planPropertyMigration(project, codex::Actor::Assistant);
    QString text = nothingToMove;
    if (!plan.moves.empty()) {
        text = u"These properties are held by exactly one entity each and would move down to it:\n"_s;
        for (const PropertyMove& move : plan.moves)
            text += moveLine(project, move);
    }
    text += heldBackText(plan);
    if (answerOf(project) == declinedAnswer)
        text += u"\n\nThis tidy-up was declined before; \"apply\" still runs it."_s;
    return McpToolResult::success(text);
}

McpToolResult apply(ToolContext& context)
{
    const PropertyPlan plan =
        codex::planPropertyMigration(context.workspace.project(), codex::Actor::Assistant);
    if (plan.moves.empty())
        return McpToolResult::success(nothingToMove + heldBackText(plan));
    const auto backup = backUpNow(context.workspace);
    if (!backup) {
        return McpToolResult::failure(
            u"Could not back the project up, so nothing was moved: %1"_s.arg(backup.message()));
    }
    QString text = u"Moved %1 property(ies) down to the entities that hold them:\n"_s.arg(plan.moves.size());
    for (const PropertyMove& move : plan.moves)
        text += moveLine(context.workspace.project(), move);
    text += heldBackText(plan) + u"\n\nThe project as it was is in the backup %1."_s.arg(backup.value().path);
    return applyAsUndoStep(
        context.workspace, context.changeLog, u"MCP: apply property migration"_s, [&context, &plan, &text] {
            for (auto& command : codex::makePropertyMigration(context.workspace.projectForEdit(), plan.moves))
                context.workspace.undoStack().push(std::move(command));
            pushAnswer(context.workspace, appliedAnswer);
            return McpToolResult::success(text);
        });
}

McpToolResult decline(ToolContext& context)
{
    return applyAsUndoStep(
        context.workspace, context.changeLog, u"MCP: decline property migration"_s, [&context] {
            pushAnswer(context.workspace, declinedAnswer);
            return McpToolResult::success(u"Recorded. Nothing moved, and nothing will ask again."_s);
        });
}

McpToolResult duplicates(ToolContext& context)
{
    const auto groups = codex::findCategoryTwins(context.workspace.project());
    if (groups.empty())
        return McpToolResult::success(u"No category in this project has a twin."_s);
    QString text = u"These are one category written two ways:\n"_s;
    for (const CategoryTwins& twins : groups) {
        text += u"\n- \"%1\": %2 categories, keeping the one with %3 entities and moving %4 across."_s.arg(
            twins.name, QString::number(twins.merged.size() + 1), QString::number(twins.keptEntities),
            QString::number(twins.movedEntities));
    }
    return McpToolResult::success(text);
}

McpToolResult mergeDuplicates(ToolContext& context, const QString& name)
{
    Project& project = context.workspace.projectForEdit();
    auto groups = codex::findCategoryTwins(project);
    if (!name.isEmpty()) {
        const QString wanted = codex::unescapedName(name);
        std::erase_if(groups, [&wanted](const CategoryTwins& twins) { return twins.name != wanted; });
    }
    if (groups.empty()) {
        return McpToolResult::failure(
            u"Nothing matched, so nothing was merged. Run \"duplicates\" to see what this project has."_s);
    }
    for (const CategoryTwins& twins : groups) {
        if (codex::isMergeHindered(project, twins, codex::Actor::Assistant)) {
            return McpToolResult::failure(
                u"An entity of \"%1\" that would have to move is locked or excluded from AI, so nothing was "
                u"merged. "
                "The person writing it can merge the categories in the app, or unlock it there."_s.arg(
                    twins.name));
        }
    }
    if (const auto backup = backUpNow(context.workspace); !backup) {
        return McpToolResult::failure(u"Could not back the project up, so nothing was merged. This repair "
                                      u"removes a category and is only run "
                                      "with a backup behind it."_s);
    }
    return applyAsUndoStep(
        context.workspace, context.changeLog, u"MCP: merge duplicate categories"_s,
        [&context, &project, &groups] {
            QString text = u"Merged the categories that were written two ways:\n"_s;
            for (const CategoryTwins& twins : groups) {
                codex::mergeCategoryTwins(project, twins, [&context](auto command) {
                    context.workspace.undoStack().push(std::move(command));
                });
                text += u"\n- \"%1\": removed %2, moved %3 entities across."_s.arg(
                    twins.name, QString::number(twins.merged.size()), QString::number(twins.movedEntities));
            }
            return McpToolResult::success(text);
        });
}

} // namespace

McpToolResult propertyMigration(ToolContext& context, const ToolArguments& arguments)
{
    const QString action = arguments.text(u"action", u"preview"_s);
    if (action == "apply"_L1)
        return apply(context);
    if (action == "decline"_L1)
        return decline(context);
    if (action == "duplicates"_L1)
        return duplicates(context);
    if (action == "merge_duplicates"_L1)
        return mergeDuplicates(context, arguments.text(u"name"));
    return preview(context);
}

} // namespace tw::app::mcp
