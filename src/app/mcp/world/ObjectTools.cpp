#include "app/codex/ObjectRemoval.h"
#include "app/mcp/registry/Refusals.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/world/FieldValues.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"
#include "core/content/ContentCommands.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::content::ContentKind;
using core::content::ContentObject;
using core::project::Project;
using workspace::Workspace;

namespace {

/** The object that the arguments name, to be changed, by title and "type" or by "id". */
Result<ContentObject*> findObjectForChange(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findOfType(context.workspace, arguments, u"name", Purpose::Change);
    if (!found)
        return Failure{found.message()};
    return context.workspace.projectForEdit().findForEdit(found.value().object->id());
}

McpToolResult deleteObject(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findObjectForChange(context, arguments);
    if (!found)
        return McpToolResult::failure(found.message());
    const ContentObject& object = *found.value();
    if (object.kind() == ContentKind::Comment) {
        return McpToolResult::failure(
            u"Comments have no title and are not deleted by tools; close one with resolve_comment."_s);
    }
    const codex::RemovalPlan plan = codex::planRemoval(context.workspace.project(), object);
    QString answer = u"Deleted the %1 '%2'."_s.arg(kindWord(object.kind()), shownName(object));
    if (plan.danglingCount > 0) {
        answer +=
            u" %1 reference(s) to it elsewhere are now dangling."_s.arg(QString::number(plan.danglingCount));
    }
    if (plan.unreachableCount > 0) {
        answer +=
            u" %1 document(s) under it are now unreachable from the manuscript; move them or undo. Until "
            "then they stand at the top level."_s.arg(QString::number(plan.unreachableCount));
    }
    if (plan.rescuedCategoryCount > 0) {
        answer += u" %1 category(ies) that hung under it moved up to its own category."_s.arg(
            QString::number(plan.rescuedCategoryCount));
    }
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: delete object"_s, [&] {
        plan.edits.push(context.workspace.projectForEdit(), context.workspace.undoStack());
        return McpToolResult::success(answer);
    });
}

Result<core::content::NameSet> readAudiences(const Project& project, const QStringList& names)
{
    core::content::NameSet audiences;
    for (const QString& entry : names) {
        const QString name = entry.trimmed();
        // Left out, it would make the list empty, which shows the object to everyone.
        if (name.isEmpty()) {
            return Failure{
                u"\"audiences\" holds a blank entry; name every audience, or pass an empty array to make the "
                "object visible to everyone."_s};
        }
        if (project.audiences().isEmpty()) {
            return Failure{
                u"Unknown audience '%1': this project defines no audiences. The writer adds them in the "
                "desktop app."_s.arg(name)};
        }
        const qsizetype index = project.audiences().indexOf(name);
        if (index < 0) {
            return Failure{
                u"Unknown audience '%1'; use one of: %2."_s.arg(name, project.audiences().join(u", "_s))};
        }
        audiences.insert(name);
    }
    return audiences;
}

McpToolResult setVisibility(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findObjectForChange(context, arguments);
    if (!found)
        return McpToolResult::failure(found.message());
    ContentObject& object = *found.value();
    const auto audiences = readAudiences(context.workspace.project(), arguments.textList(u"audiences"));
    if (!audiences)
        return McpToolResult::failure(audiences.message());
    const QString name = shownName(object);
    if (audiences.value() == object.visibleTo()) {
        return McpToolResult::success(
            u"The visibility of '%1' already matches; nothing changed."_s.arg(name));
    }
    const QStringList names(audiences.value().begin(), audiences.value().end());
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: set visibility"_s, [&] {
        context.workspace.undoStack().push(
            std::make_unique<core::content::SetObjectVisibilityCommand>(object, audiences.value()));
        return McpToolResult::success(
            u"'%1' is now visible to %2."_s.arg(name, names.isEmpty() ? u"everyone"_s : names.join(u", "_s)));
    });
}

/** Looks among all objects, excluded from AI or not: this is the one tool that works on those that are. */
Result<ContentObject*> findWhateverExcluded(
    ToolContext& context, const ToolArguments& arguments, std::optional<ContentKind> kind)
{
    Project& project = context.workspace.projectForEdit();
    const QString idText = arguments.text(u"id").trimmed();
    const QString name = arguments.text(u"name");
    std::vector<ContentId> candidates{ContentId::fromString(idText)};
    if (idText.isEmpty()) {
        candidates = project.names().named(name);
        if (candidates.empty())
            candidates = project.names().aliased(name);
    }
    std::erase_if(candidates, [&](const ContentId& id) {
        const ContentObject* const object = project.find(id);
        return !object || (kind && object->kind() != *kind);
    });
    if (candidates.size() == 1)
        return project.findForEdit(candidates.front());
    if (!candidates.empty()) {
        QStringList names(std::ssize(candidates), name);
        return Failure{chooseByName(names, name, kind ? QString(kindWord(*kind)) : u"object"_s).message()};
    }
    // Nothing of the project's own: what the finder says of the rest is right.
    const auto found = findOfType(context.workspace, arguments, u"name", Purpose::Change);
    if (!found)
        return Failure{found.message()};
    return project.findForEdit(found.value().object->id());
}

McpToolResult setAiExclusion(ToolContext& context, const ToolArguments& arguments)
{
    const auto kind = readObjectType(arguments);
    if (!kind)
        return McpToolResult::failure(kind.message());
    const auto found = findWhateverExcluded(context, arguments, kind.value());
    if (!found)
        return McpToolResult::failure(found.message());
    ContentObject& object = *found.value();
    const QString name = shownName(object);
    const bool excludes = arguments.boolean(u"excluded", true);
    if (object.isAiExcluded() == excludes) {
        return McpToolResult::success((excludes ? u"'%1' is already excluded from AI."_s
                                                : u"'%1' is already included in AI features."_s)
                                          .arg(name));
    }
    if (object.isLocked())
        return McpToolResult::failure(locked(name));
    const QString text = excludes ? u"'%1' is now excluded from AI features (its content is withheld from "
                                    "the agent snapshot, the world index, and consistency checks)."_s
                                  : u"'%1' is included in AI features again."_s;
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: set AI exclusion"_s, [&] {
        context.workspace.undoStack().push(
            std::make_unique<core::content::SetAiExclusionCommand>(object, excludes));
        return McpToolResult::success(text.arg(name));
    });
}

QJsonObject narrowingProperties(QJsonObject properties)
{
    properties.insert(
        u"type"_s, objectTypeProperty(u"The kind of object, when several kinds share the name."_s));
    return properties;
}

} // namespace

Tool deleteObjectTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Delete an object"_s,
        .hints = {.isDestructive = true},
        .spec =
            {u"delete_object"_s,
             u"Deletes any titled object (entity, document, map, spreadsheet, timeline event, ...) by name "
             "and states what type it deleted. When objects of several types share the name, pass \"type\", "
             "or \"id\" when two of one type do. References to it elsewhere are left dangling, and the "
             "documents under a deleted document lose their place and stand at the top level until they are "
             "moved with update_document: the answer counts both, and undo_last takes the deletion back with "
             "everything. Categories that hung under a deleted "
             "entity move up. To combine two entities without losing references call merge_entities. Locked "
             "objects, objects excluded from AI and those of mounted libraries are refused; categories are "
             "deleted with update_category, plot threads are not deleted by tools."_s,
             makeSubjectSchema(u"name"_s, u"The object's title or name."_s, narrowingProperties({}))},
        .subject = u"name"_s,
        .refusedByHandler = {u"type"_s},
        .handler = deleteObject,
    };
}

Tool setVisibilityTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Set who may see an object"_s,
        .hints = {.isDestructive = true, .isIdempotent = true},
        .spec =
            {u"set_visibility"_s,
             u"Restricts an object to the named audiences (an empty array makes it visible to everyone). "
             "\"audiences\" replaces the present set and takes only audiences that the project defines, in "
             "their exact spelling; get_project_overview lists them. Works on any titled object; pass "
             "\"type\" when several kinds share the name. Visibility decides what previews, websites and "
             "exports for an audience show. It is no protection from AI: for that use set_ai_exclusion."_s,
             makeSubjectSchema(
                 u"name"_s, u"The object's title or name."_s,
                 narrowingProperties(
                     {{u"audiences"_s,
                       listProperty(
                           u"Who may see it; empty for everyone."_s, textProperty(u"An audience."_s))}}),
                 {u"audiences"_s})},
        .subject = u"name"_s,
        .refusedByHandler = {u"type"_s},
        .handler = setVisibility,
    };
}

Tool setAiExclusionTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Exclude an object from AI"_s,
        .hints = {.isDestructive = true, .isIdempotent = true},
        .spec =
            {u"set_ai_exclusion"_s,
             u"Toggles whether an object is excluded from AI features (per-object privacy). \"excluded\" "
             "(default true) excludes it: from then on tools neither list nor find nor change it, and its "
             "content is withheld from the assistant. \"excluded\": false includes it again; do that only "
             "when the writer asks for it. Works on any titled object; pass \"type\" when several kinds "
             "share the name. Locked objects and objects of mounted libraries are refused."_s,
             makeSubjectSchema(
                 u"name"_s, u"The object's title or name."_s,
                 narrowingProperties(
                     {{u"excluded"_s, booleanProperty(u"Whether AI features leave it out."_s, true)}}))},
        .subject = u"name"_s,
        .refusedByHandler = {u"type"_s},
        .handler = setAiExclusion,
    };
}

} // namespace tw::app::mcp
