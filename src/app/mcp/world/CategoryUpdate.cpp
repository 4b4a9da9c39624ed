#include "app/codex/CategoryEdits.h"
#include "app/codex/FieldKeys.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/world/CategoryPlace.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"
#include "core/entity/Schema.h"
#include "core/taxonomy/TaxonomyCommands.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::ContentId;
using core::Failure;
using core::Result;
using core::entity::Entity;
using core::entity::Schema;
using core::project::Project;
using core::taxonomy::Category;
using core::taxonomy::CategoryKeyList;

namespace {

/** One call of update_category; every step pushes what differs. */
class CategoryUpdate
{
public:
    CategoryUpdate(ToolContext& context, const ToolArguments& arguments, CategoryId id)
        : m_context(context)
        , m_arguments(arguments)
        , m_id(id)
    {}

    [[nodiscard]] McpToolResult run()
    {
        const QString name = category().name;
        const auto before = m_context.workspace.undoStack().position();
        for (const auto step :
             {&CategoryUpdate::rename, &CategoryUpdate::move, &CategoryUpdate::takeInherited,
              &CategoryUpdate::dropExcluded}) {
            if (const auto done = (this->*step)(); !done)
                return McpToolResult::failure(done.message());
        }
        if (m_context.workspace.undoStack().position() == before)
            return McpToolResult::success(u"Category '%1' already matches; nothing changed."_s.arg(name));
        return McpToolResult::success(u"Updated category '%1'."_s.arg(category().name));
    }

private:
    [[nodiscard]] const Project& project() const { return m_context.workspace.project(); }
    [[nodiscard]] const Category& category() const { return *project().taxonomy().category(m_id); }

    template <class Command, class... Arguments>
    void push(Arguments&&... arguments)
    {
        m_context.workspace.undoStack().push(std::make_unique<Command>(
            m_context.workspace.projectForEdit(), m_id, std::forward<Arguments>(arguments)...));
    }

    [[nodiscard]] Result<void> rename()
    {
        if (!m_arguments.has(u"new_name"))
            return {};
        const auto name = readNewName(m_arguments, u"new_name");
        if (!name)
            return Failure{name.message()};
        if (isCategoryNameTaken(project(), name.value(), m_id)) {
            return Failure{
                u"A category named '%1' already exists; renaming onto it would leave both unreachable by "
                "name."_s.arg(name.value())};
        }
        if (name.value() != category().name)
            push<core::taxonomy::RenameCategoryCommand>(name.value());
        return {};
    }

    [[nodiscard]] Result<void> move()
    {
        const auto place = readCategoryPlace(m_context.workspace, m_arguments);
        if (!place)
            return Failure{place.message()};
        const GivenPlace& to = place.value();
        const bool isThere = category().parentId == to.parentId && category().parentEntityId == to.entityId;
        if (!to.isGiven || isThere)
            return {};
        if (!to.entityId.isNull()) {
            if (!core::entity::checkMoveToEntity(project(), m_id, to.entityId)) {
                return Failure{
                    u"Can't hang '%1' from '%2': that entity is already somewhere beneath it, so the tree "
                    "would loop."_s.arg(category().name, to.name)};
            }
            push<core::taxonomy::ReparentCategoryToEntityCommand>(to.entityId);
            return {};
        }
        if (!core::entity::checkMoveToCategory(project(), m_id, to.parentId)) {
            return Failure{u"Can't move '%1' under '%2': that would nest a category inside one of its own "
                           "subcategories."_s.arg(category().name, to.name)};
        }
        push<core::taxonomy::ReparentCategoryCommand>(
            to.parentId, codex::sortIndexAtEnd(project(), to.parentId));
        return {};
    }

    /** The keys of the fields named by a list; a key that the category names already may stay. */
    [[nodiscard]] Result<QStringList> readKeys(
        const QStringList& names, const Schema& above, const QStringList& present) const
    {
        QStringList keys;
        for (const QString& name : names) {
            const auto* const field = codex::findFieldNamed(above, name);
            const QString key = field ? field->field.key : name.trimmed();
            if (!field && !present.contains(key)) {
                return Failure{
                    u"Nothing named '%1' comes to '%2' from above; get_category of its parent lists what "
                    "does."_s.arg(name, category().name)};
            }
            if (!keys.contains(key))
                keys.append(key);
        }
        return keys;
    }

    [[nodiscard]] Result<void> setKeys(QStringView argument, CategoryKeyList list, const QStringList& present)
    {
        const auto names = m_arguments.givenTextList(argument);
        if (!names)
            return {};
        const auto keys = readKeys(*names, codex::fieldsFromAbove(project(), category()), present);
        if (!keys)
            return Failure{keys.message()};
        if (keys.value() != present)
            push<core::taxonomy::SetCategoryKeyListCommand>(list, keys.value());
        return {};
    }

    [[nodiscard]] Result<void> takeInherited()
    {
        const bool isEmpty = m_arguments.textList(u"inherited").isEmpty();
        if (category().parentEntityId.isNull() && !isEmpty) {
            return Failure{
                u"'%1' does not hang under an entity, so it inherits everything from above already; use "
                "\"excluded\" to drop properties."_s.arg(category().name)};
        }
        return setKeys(u"inherited", CategoryKeyList::Inherited, category().inheritedKeys);
    }

    [[nodiscard]] Result<void> dropExcluded()
    {
        return setKeys(u"excluded", CategoryKeyList::Excluded, category().excludedKeys);
    }

    ToolContext& m_context;
    const ToolArguments& m_arguments;
    CategoryId m_id;
};

/** Its entities move up, which changes them. */
std::set<ContentId> entitiesIn(const Project& project, const CategoryId& id)
{
    std::set<ContentId> entities;
    for (const Entity* const entity : core::project::objectsOf<Entity>(project)) {
        if (entity->categoryId() == id)
            entities.insert(entity->id());
    }
    return entities;
}

McpToolResult deleteCategory(ToolContext& context, const Category& category)
{
    const Project& project = context.workspace.project();
    const auto checked =
        checkHolders(project, entitiesIn(project, category.id), u"delete '%1'"_s.arg(category.name));
    if (!checked)
        return McpToolResult::failure(checked.message());
    const Category* const parent = project.taxonomy().category(category.parentId);
    const QString text =
        parent ? u"Deleted category '%1'; its entities moved to '%2'."_s.arg(category.name, parent->name)
               : u"Deleted category '%1'; its entities are now uncategorized."_s.arg(category.name);
    context.workspace.undoStack().push(std::make_unique<core::taxonomy::RemoveCategoryCommand>(
        context.workspace.projectForEdit(), category.id));
    return McpToolResult::success(text);
}

McpToolResult updateCategory(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findCategoryForChange(context.workspace, arguments.text(u"name"));
    if (!found)
        return McpToolResult::failure(found.message());
    const Category& category = *found.value();
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: update category"_s, [&] {
        return arguments.boolean(u"delete") ? deleteCategory(context, category)
                                            : CategoryUpdate(context, arguments, category.id).run();
    });
}

} // namespace

Tool updateCategoryTool()
{
    const QJsonObject names = textProperty(u"A field's name."_s);
    return {
        .access = ToolAccess::Changing,
        .title = u"Change a category"_s,
        .hints = {.isDestructive = true, .isIdempotent = true},
        .spec =
            {u"update_category"_s,
             u"Renames, moves, or deletes a codex category. Only what you pass changes. \"new_name\" renames "
             "it. \"parent\" moves it under another category (null or empty: to the top level), "
             "\"parent_entity\" hangs it under an entity; moving it into its own branch is refused. "
             "\"excluded\" replaces the list of inherited properties that it drops for its whole branch: "
             "values already entered stay and come back when a name is left out of the list again. "
             "\"inherited\", only for a category under an entity, replaces the list of properties that it "
             "takes through that entity. \"delete\": true removes the category, whatever else is passed; its "
             "entities and subcategories move up to its parent, and nothing of them is lost. Refused when "
             "one of those entities is locked or excluded from AI. Call get_category first."_s,
             makeObjectSchema(
                 {{u"name"_s, textProperty(u"The category to change; its id when several share the name."_s)},
                  {u"new_name"_s, textProperty(u"Its new name."_s)},
                  {u"parent"_s, textProperty(u"The category to move it under; null for the top level."_s)},
                  {u"parent_entity"_s, textProperty(u"The entity to hang it under."_s)},
                  {u"inherited"_s, listProperty(u"What it takes through its entity."_s, names)},
                  {u"excluded"_s, listProperty(u"Inherited properties that it drops."_s, names)},
                  {u"delete"_s, booleanProperty(u"Delete the category."_s)}},
                 {u"name"_s})},
        .handler = updateCategory,
    };
}

} // namespace tw::app::mcp
