#include "app/codex/EntityMerge.h"
#include "app/codex/FieldKeys.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"
#include "core/content/ContentCommands.h"
#include "core/entity/Schema.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::content::ContentKind;
using core::entity::Entity;
using core::project::Project;
using workspace::Workspace;

namespace {

/** Both arguments name an entity; an id may stand in their place, for two of one name are what is often
 * merged. */
Result<const Entity*> findEntity(const Workspace& workspace, const QString& nameOrId, Purpose purpose)
{
    const bool isId = !ContentId::fromString(nameOrId.trimmed()).isNull();
    const auto found = isId ? resolveById(workspace, nameOrId, u"entity"_s, purpose)
                            : resolveByName(workspace, nameOrId, u"entity"_s, purpose);
    if (!found)
        return Failure{found.message()};
    return static_cast<const Entity*>(found.value().object);
}

/** What only some might see must not come to others unnoticed. */
QString visibilityWarning(const Entity& source, const Entity& target)
{
    const core::content::NameSet& secret = source.visibleTo();
    if (secret.empty() || secret == target.visibleTo())
        return {};
    const QStringList names(secret.begin(), secret.end());
    return u" Note: '%1' was visible only to %2, and what came from it is now visible to whoever sees '%3'; "
           "set_visibility changes that."_s.arg(source.name(), names.join(u", "_s), target.name());
}

McpToolResult mergeEntities(ToolContext& context, const ToolArguments& arguments)
{
    const Project& project = context.workspace.project();
    const auto source = findEntity(context.workspace, arguments.text(u"source"), Purpose::Change);
    if (!source)
        return McpToolResult::failure(source.message());
    const auto target = findEntity(context.workspace, arguments.text(u"target"), Purpose::Change);
    if (!target)
        return McpToolResult::failure(target.message());
    const auto plan = codex::planMerge(project, *source.value(), *target.value());
    if (!plan)
        return McpToolResult::failure(plan.message());
    const QString sourceName = source.value()->name();
    const auto checked =
        checkHolders(project, plan.value().holders, u"re-point its references to '%1'"_s.arg(sourceName));
    if (!checked)
        return McpToolResult::failure(checked.message());
    const QString answer =
        u"Merged '%1' into '%2': %3 reference(s) re-pointed."_s.arg(
            sourceName, target.value()->name(), QString::number(plan.value().repointedCount)) +
        visibilityWarning(*source.value(), *target.value());
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: merge entities"_s, [&] {
        plan.value().edits.push(context.workspace.projectForEdit(), context.workspace.undoStack());
        return McpToolResult::success(answer);
    });
}

Result<QStringList> readFieldKeys(const Project& project, const Entity& entity, const QStringList& names)
{
    const core::entity::Schema schema = core::entity::schemaOfEntity(project, entity);
    QStringList keys;
    for (const QString& name : names) {
        const auto* const field = codex::findFieldNamed(schema, name);
        if (!field)
            return Failure{u"'%1' has no field '%2'."_s.arg(entity.name(), name)};
        if (!keys.contains(field->field.key))
            keys.append(field->field.key);
    }
    return keys;
}

McpToolResult splitEntity(ToolContext& context, const ToolArguments& arguments)
{
    const Project& project = context.workspace.project();
    const auto source = findEntity(context.workspace, arguments.text(u"source"), Purpose::Use);
    if (!source)
        return McpToolResult::failure(source.message());
    const auto name = readNewName(arguments, u"new_name");
    if (!name)
        return McpToolResult::failure(name.message());
    if (const auto checked = checkNewName(project, ContentKind::Entity, name.value()); !checked)
        return McpToolResult::failure(checked.message());
    const auto keys = readFieldKeys(project, *source.value(), arguments.textList(u"fields"));
    if (!keys)
        return McpToolResult::failure(keys.message());
    const QString answer = u"Split '%1' off '%2'."_s.arg(name.value(), source.value()->name());
    auto entity =
        codex::splitOff(*source.value(), {name.value(), keys.value(), arguments.boolean(u"copy_lifespan")});
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: split entity"_s, [&] {
        context.workspace.undoStack().push(std::make_unique<core::content::AddObjectCommand>(
            context.workspace.projectForEdit(), std::move(entity)));
        return McpToolResult::success(answer);
    });
}

} // namespace

Tool mergeEntitiesTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Merge two entities"_s,
        .hints = {.isDestructive = true},
        .spec =
            {u"merge_entities"_s,
             u"Merges the source entity into the target: fills gaps in the target, re-points every reference "
             "from the source, then removes the source. Where both hold a value the target's stays, so read "
             "both with get_entity first and carry over what would be lost. The source's name and aliases "
             "become aliases of the target, and tags, gallery, plot threads and states over time are joined. "
             "References are followed everywhere: fields now and over time, event participants and places, "
             "map pins, regions, tokens and routes, boards, comments, tasks, languages, plot threads, "
             "continuity rules, templates, categories that hang under the source, and links in text. Text "
             "that only mentions the source's name stays as written; rename_object changes it. Refused when "
             "an object that would have to change is locked or excluded from AI. Either argument may be an "
             "id when two entities share a name. One undo step."_s,
             makeObjectSchema(
                 {{u"source"_s, textProperty(u"The entity that goes: its name or id."_s)},
                  {u"target"_s, textProperty(u"The entity that stays: its name or id."_s)}},
                 {u"source"_s, u"target"_s})},
        .handler = mergeEntities,
    };
}

Tool splitEntityTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Split an entity"_s,
        .spec =
            {u"split_entity"_s,
             u"Carves a new entity off an existing one (the inverse of merge_entities): the new entity is "
             "created in the source's category, copying the chosen fields (and optionally the lifespan). "
             "\"fields\" names the fields to copy, with their states over time; without it only the name is "
             "set. \"copy_lifespan\" (default false) takes birth and death along. The source keeps "
             "everything, and references to it stay with it: clear what has moved with update_entity. "
             "\"new_name\" must be new among entities; call check_name first."_s,
             makeObjectSchema(
                 {{u"source"_s, textProperty(u"The entity to copy from: its name or id."_s)},
                  {u"new_name"_s, textProperty(u"The new entity's name."_s)},
                  {u"fields"_s, listProperty(u"The fields to copy."_s, textProperty(u"A field's label."_s))},
                  {u"copy_lifespan"_s, booleanProperty(u"Whether to copy birth and death."_s)}},
                 {u"source"_s, u"new_name"_s})},
        .handler = splitEntity,
    };
}

} // namespace tw::app::mcp
