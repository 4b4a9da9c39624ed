#include "app/codex/FieldKeys.h"
#include "app/codex/Relationships.h"
#include "app/mcp/registry/Display.h"
#include "app/mcp/registry/Refusals.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"
#include "core/entity/Schema.h"

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using codex::Relationship;
using core::CategoryId;
using core::ContentId;
using core::entity::Entity;
using core::entity::FieldOrigin;
using core::entity::ResolvedField;
using core::entity::Schema;
using core::project::Project;
using core::taxonomy::Category;
using core::taxonomy::Field;
using core::taxonomy::FieldType;
using workspace::Workspace;

namespace {

/** What stands for an entity in a list; shorter than a value by itself. */
constexpr qsizetype summaryLength = 120;

/** The entities of a category that may be shown, by name. */
struct Members
{
    std::vector<const Entity*> shown;
    qsizetype excluded = 0;
};

Members membersOf(const Project& project, const CategoryId& categoryId)
{
    Members members;
    for (const Entity* const entity : core::project::objectsOf<Entity>(project)) {
        if (entity->categoryId() != categoryId)
            continue;
        if (entity->isAiExcluded())
            ++members.excluded;
        else
            members.shown.push_back(entity);
    }
    std::ranges::stable_sort(members.shown, [](const Entity* left, const Entity* right) {
        return left->name().compare(right->name(), Qt::CaseInsensitive) < 0;
    });
    return members;
}

QString omittedText(qsizetype excluded)
{
    return excluded > 0 ? u'\n' + excludedEntitiesOmitted(excluded) : QString();
}

/** The "Summary" field, else the first text that is filled in. */
QString summaryOf(const Schema& schema, const Entity& entity)
{
    const ResolvedField* const summary = codex::findFieldNamed(schema, u"summary"_s);
    if (summary) {
        const QString text = core::entity::shownValue(*summary, entity).value_or(QString());
        if (!text.trimmed().isEmpty())
            return shortenForDisplay(text, summaryLength);
    }
    for (const ResolvedField& field : schema) {
        const QString text = core::entity::shownValue(field, entity).value_or(QString());
        if (field.field.type == FieldType::Text && !field.isFixed() && !text.trimmed().isEmpty())
            return shortenForDisplay(text, summaryLength);
    }
    return u"(no summary)"_s;
}

QString subcategoryText(const Project& project, const CategoryId& id)
{
    QStringList names;
    for (const CategoryId& child : project.taxonomy().childrenOf(id))
        names.append(project.taxonomy().category(child)->name);
    return names.isEmpty() ? QString() : u"\nSubcategories: %1"_s.arg(names.join(u", "_s));
}

McpToolResult listCategory(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findCategoryToRead(context.workspace, arguments.text(u"category"));
    if (!found)
        return McpToolResult::failure(found.message());
    const auto& [category, project, library] = found.value();
    const Members members = membersOf(*project, category->id);
    QStringList lines;
    if (library)
        lines.append(mountedMark(library->name));
    for (const Entity* const entity : members.shown) {
        lines.append(u"- %1: %2"_s.arg(
            entity->name(), summaryOf(core::entity::schemaOfEntity(*project, *entity), *entity)));
    }
    if (members.shown.empty())
        lines.append(u"There are no entities in '%1'."_s.arg(category->name));
    return McpToolResult::success(
        lines.join(u'\n') + subcategoryText(*project, category->id) + omittedText(members.excluded));
}

QString fieldKindText(const Project& project, const Field& field)
{
    QString text = core::taxonomy::fieldTypeName(field.type);
    if (field.type == FieldType::Choice)
        text += u": %1"_s.arg(field.options.join(u", "_s));
    const Category* const target = project.taxonomy().category(field.referenceCategory);
    if (field.type == FieldType::Reference && target)
        text += u" to %1"_s.arg(target->name);
    return text;
}

QString originText(const Project& project, const ResolvedField& field)
{
    if (field.origin == FieldOrigin::Category)
        return u"own"_s;
    const Category* const source = project.taxonomy().category(field.definedBy);
    if (!source)
        return u"inherited through the entity"_s;
    return u"inherited from '%1'"_s.arg(source->name);
}

QString fieldText(
    const Workspace& workspace, const Project& project, const ResolvedField& field, ValueDisplay& display)
{
    QStringList marks{fieldKindText(project, field.field)};
    if (field.field.isRequired)
        marks.append(u"required"_s);
    if (field.isFixed()) {
        marks.append(
            u"fixed to '%1'"_s.arg(display.shown(valueText(workspace, field.field, field.field.fixedValue))));
    }
    marks.append(originText(project, field));
    const QString text = u"- %1 (%2)"_s.arg(field.field.displayName(), marks.join(u"; "_s));
    return field.field.description.isEmpty()
               ? text
               : u"%1 -- %2"_s.arg(text, display.shown(field.field.description));
}

QString placeText(const Workspace& workspace, const Project& project, const Category& category)
{
    if (!category.parentEntityId.isNull())
        return u"Under the entity: %1"_s.arg(entityText(workspace, category.parentEntityId));
    const Category* const parent = project.taxonomy().category(category.parentId);
    return u"Parent: %1"_s.arg(parent ? parent->name : u"(top level)"_s);
}

McpToolResult getCategory(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findCategoryToRead(context.workspace, arguments.text(u"name"));
    if (!found)
        return McpToolResult::failure(found.message());
    const auto& [category, project, library] = found.value();
    const Members members = membersOf(*project, category->id);
    QStringList lines{u"# %1"_s.arg(category->name)};
    if (library)
        lines.append(mountedMark(library->name));
    lines.append(placeText(context.workspace, *project, *category));
    lines.last() += subcategoryText(*project, category->id);
    lines.append(u"Entities: %1"_s.arg(QString::number(members.shown.size())));
    if (!category->excludedKeys.isEmpty())
        lines.append(u"Dropped from above: %1"_s.arg(category->excludedKeys.join(u", "_s)));
    if (!category->parentEntityId.isNull()) {
        lines.append(u"Taken through the entity: %1"_s.arg(
            category->inheritedKeys.isEmpty() ? u"nothing"_s : category->inheritedKeys.join(u", "_s)));
    }
    lines.append(u"\nFields"_s);
    const Schema schema = core::entity::schemaOfCategory(*project, category->id);
    ValueDisplay display(arguments.boolean(u"full") ? Shortening::None : Shortening::Long);
    for (const ResolvedField& field : schema)
        lines.append(fieldText(context.workspace, *project, field, display));
    if (schema.empty())
        lines.append(u"- none; add_field defines the first"_s);
    return McpToolResult::success(
        lines.join(u'\n') + omittedText(members.excluded) + display.note(u"get_category"_s));
}

McpToolResult getRelationships(ToolContext& context, const ToolArguments& arguments)
{
    std::optional<ContentId> only;
    if (!arguments.text(u"entity").trimmed().isEmpty() || !arguments.text(u"id").trimmed().isEmpty()) {
        const auto entity = findToRead<Entity>(context.workspace, arguments, u"entity");
        if (!entity)
            return McpToolResult::failure(entity.message());
        only = entity.value()->id();
    }
    std::vector<const Project*> projects{&context.workspace.project()};
    for (const workspace::MountedLibrary& library : context.workspace.libraries())
        projects.push_back(library.project.get());

    QStringList lines;
    std::set<ContentId> omitted;
    for (const Relationship& link : codex::relationships(projects)) {
        if (only && link.from->id() != *only && link.toId != *only)
            continue;
        if (link.from->isAiExcluded()) {
            omitted.insert(link.from->id());
            continue;
        }
        lines.append(
            u"%1 --%2--> %3"_s.arg(link.from->name(), link.field, entityText(context.workspace, link.toId)));
    }
    if (lines.isEmpty()) {
        lines.append(
            only ? u"'%1' has no relationships."_s.arg(entityText(context.workspace, *only))
                 : u"There are no relationships in this project."_s);
    }
    return McpToolResult::success(lines.join(u'\n') + omittedText(std::ssize(omitted)));
}

} // namespace

Tool listCategoryTool()
{
    return {
        .access = ToolAccess::ReadOnly,
        .title = u"List a category"_s,
        .spec =
            {u"list_category"_s,
             u"Lists the entities of a named codex category with one-line summaries. The summary is the "
             "entity's Summary field, or the first text it has, cut short. Only the category's own entities "
             "are listed; its subcategories are named below, each to be listed by its own call. A category "
             "that only a mounted library has is listed from there. Entities excluded from AI are left out "
             "and counted. get_project_overview shows which categories there are, get_entity reads one "
             "entity."_s,
             makeObjectSchema(
                 {{u"category"_s,
                   textProperty(u"The category's name, or its id when several share the name."_s)}},
                 {u"category"_s})},
        .handler = listCategory,
    };
}

Tool getRelationshipsTool()
{
    return {
        .access = ToolAccess::ReadOnly,
        .title = u"Relationship graph"_s,
        .spec =
            {u"get_relationships"_s,
             u"The codex relationship graph as text: the Reference-field links between entities (spanning "
             "mounted libraries). One link a line, \"Marda --Spouse--> Tom\". Without \"entity\" it lists "
             "every link in the project; with it, only the links that go out from that entity or lead to it. "
             "An entity excluded from AI is never named, and \"(missing)\" marks a reference whose entity is "
             "gone. To make a link set the reference field with update_entity."_s,
             makeObjectSchema(
                 {{u"entity"_s, textProperty(u"Only the links of this entity."_s)},
                  {u"id"_s,
                   textProperty(u"The id, in place of \"entity\", when several share the name."_s)}})},
        .handler = getRelationships,
    };
}

Tool getCategoryTool()
{
    return {
        .access = ToolAccess::ReadOnly,
        .title = u"Read a category"_s,
        .spec =
            {u"get_category"_s,
             u"Shows a category's parent, subcategories, entity count, and its full field schema (each "
             "field's type, options, whether required, and own vs inherited) -- the read side of add_field / "
             "remove_field / move_field. Call it before create_entity to learn which fields an entity takes, "
             "and before changing the schema. Fields marked fixed get their value from the category that "
             "defines them. Own fields can be removed, moved and converted here; inherited ones only on the "
             "category named beside them, or dropped for this branch with update_category's \"excluded\". "
             "Descriptions and fixed values longer than 300 characters are shortened unless \"full\" is true "
             "(default false): ask for them in full before you replace a field, or their unseen tail is "
             "lost. Categories of mounted libraries can be read, not changed."_s,
             makeObjectSchema(
                 {{u"name"_s, textProperty(u"The category's name, or its id when several share the name."_s)},
                  {u"full"_s, booleanProperty(u"Show every value in full length."_s)}},
                 {u"name"_s})},
        .handler = getCategory,
    };
}

} // namespace tw::app::mcp
