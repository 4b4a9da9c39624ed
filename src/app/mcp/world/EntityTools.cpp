#include "app/mcp/registry/Schema.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/world/EntityEdit.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"
#include "core/content/ContentCommands.h"
#include "core/entity/EntityCommands.h"
#include "core/entity/Schema.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::content::ContentKind;
using core::entity::Entity;
using core::entity::Schema;
using core::project::Project;

namespace {

McpToolResult createEntity(ToolContext& context, const ToolArguments& arguments)
{
    const Project& project = context.workspace.project();
    const auto name = readNewName(arguments, u"name");
    if (!name)
        return McpToolResult::failure(name.message());
    const auto category = findCategoryForChange(context.workspace, arguments.text(u"category"));
    if (!category)
        return McpToolResult::failure(category.message());
    if (const auto checked = checkNewName(project, ContentKind::Entity, name.value()); !checked)
        return McpToolResult::failure(checked.message());
    const Schema schema = core::entity::schemaOfCategory(project, category.value()->id);
    const auto content = editedContent(context.workspace, schema, name.value(), {}, arguments);
    if (!content)
        return McpToolResult::failure(content.message());

    auto entity = std::make_unique<Entity>(ContentId::create(), category.value()->id, name.value());
    entity->setValues(content.value().values);
    entity->setTimedValues(content.value().timedValues);
    entity->setLifespan(content.value().lifespan);
    entity->setAliases(content.value().aliases);
    entity->setTags(content.value().tags);
    const QString notes =
        missingFieldsText(schema, content.value().values) + lifespanNote(content.value().lifespan);
    const QString answer =
        u"Created entity '%1' in '%2'.%3"_s.arg(name.value(), category.value()->name, notes);
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: create entity"_s, [&] {
        context.workspace.undoStack().push(std::make_unique<core::content::AddObjectCommand>(
            context.workspace.projectForEdit(), std::move(entity)));
        return McpToolResult::success(answer);
    });
}

/** One call of update_entity; every step pushes what differs. */
class EntityUpdate
{
public:
    EntityUpdate(ToolContext& context, Entity& entity, const ToolArguments& arguments)
        : m_context(context)
        , m_entity(entity)
        , m_arguments(arguments)
    {}

    [[nodiscard]] McpToolResult run()
    {
        const auto before = m_context.workspace.undoStack().position();
        // The category first: it decides which fields there are.
        for (const auto step : {&EntityUpdate::rename, &EntityUpdate::move, &EntityUpdate::setContent}) {
            if (const auto done = (this->*step)(); !done)
                return McpToolResult::failure(done.message());
        }
        if (m_context.workspace.undoStack().position() == before) {
            return McpToolResult::success(
                u"Entity '%1' already matches; nothing changed."_s.arg(m_entity.name()));
        }
        const bool isLifespanGiven = m_arguments.has(u"birth") || m_arguments.has(u"death");
        return McpToolResult::success(u"Updated entity '%1'.%2"_s.arg(
            m_entity.name(), isLifespanGiven ? lifespanNote(m_entity.lifespan()) : QString()));
    }

private:
    template <class Command>
    void change(const typename Command::Value& present, const typename Command::Value& value)
    {
        if (value != present)
            m_context.workspace.undoStack().push(std::make_unique<Command>(m_entity, value));
    }

    [[nodiscard]] Result<void> rename()
    {
        if (!m_arguments.has(u"new_name"))
            return {};
        const auto name = readNewName(m_arguments, u"new_name");
        if (!name)
            return Failure{name.message()};
        const auto checked = checkRename(m_context.workspace.project(), m_entity, name.value());
        if (!checked)
            return checked;
        change<core::entity::SetEntityNameCommand>(m_entity.name(), name.value());
        return {};
    }

    [[nodiscard]] Result<void> move()
    {
        const auto name = m_arguments.givenText(u"category");
        if (!name)
            return {};
        core::CategoryId target;
        if (!name->trimmed().isEmpty()) {
            const auto category = findCategoryForChange(m_context.workspace, *name);
            if (!category)
                return Failure{category.message()};
            target = category.value()->id;
        }
        if (!core::entity::checkMoveOfEntity(m_context.workspace.project(), m_entity, target)) {
            return Failure{
                u"Can't move '%1' to '%2': that category hangs somewhere beneath the entity, so the tree "
                "would loop."_s.arg(m_entity.name(), *name)};
        }
        change<core::entity::SetEntityCategoryCommand>(m_entity.categoryId(), target);
        return {};
    }

    [[nodiscard]] Result<void> setContent()
    {
        const Schema schema = core::entity::schemaOfEntity(m_context.workspace.project(), m_entity);
        const auto content =
            editedContent(m_context.workspace, schema, m_entity.name(), contentOf(m_entity), m_arguments);
        if (!content)
            return Failure{content.message()};
        setValues(content.value().values);
        change<core::entity::SetEntityTimedValuesCommand>(
            m_entity.timedValues(), content.value().timedValues);
        change<core::entity::SetEntityLifespanCommand>(m_entity.lifespan(), content.value().lifespan);
        change<core::entity::SetEntityAliasesCommand>(m_entity.aliases(), content.value().aliases);
        change<core::content::SetObjectTagsCommand>(m_entity.tags(), content.value().tags);
        return {};
    }

    void setValues(const core::entity::FieldValues& values)
    {
        const core::entity::FieldValues present = m_entity.values();
        const auto set = [this](const QString& key, std::optional<QString> value) {
            m_context.workspace.undoStack().push(
                std::make_unique<core::entity::SetFieldValueCommand>(m_entity, key, std::move(value)));
        };
        for (const auto& [key, value] : values) {
            const auto known = present.find(key);
            if (known == present.end() || known->second != value)
                set(key, value);
        }
        for (const auto& [key, value] : present) {
            if (!values.contains(key))
                set(key, std::nullopt);
        }
    }

    ToolContext& m_context;
    Entity& m_entity;
    const ToolArguments& m_arguments;
};

McpToolResult updateEntity(ToolContext& context, const ToolArguments& arguments)
{
    const auto entity = findForChange<Entity>(context.workspace, arguments, u"name");
    if (!entity)
        return McpToolResult::failure(entity.message());
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: update entity"_s, [&] {
        return EntityUpdate(context, *entity.value(), arguments).run();
    });
}

} // namespace

Tool createEntityTool()
{
    QJsonObject properties = entityContentProperties();
    properties.insert(u"name"_s, textProperty(u"The new entity's name."_s));
    properties.insert(u"category"_s, textProperty(u"The category it belongs to, by name or id."_s));
    return {
        .access = ToolAccess::Changing,
        .title = u"Create an entity"_s,
        .spec =
            {u"create_entity"_s,
             u"Creates a codex entity, optionally with its aliases, tags, lifespan, and references in the "
             "SAME call (one undo step) -- no follow-up update_entity needed. \"name\" must be new among "
             "entities: call check_name first, also for near matches. \"category\" must exist; get_category "
             "lists the fields it takes, which \"fields\" then names by label, values written as people "
             "write them (dates in the project's calendar, true or false, one of the choices). "
             "\"references\" sets reference fields by the names of entities, one or a list; they may be in a "
             "mounted library, but must exist, so create the other one first. \"birth\" and \"death\" are "
             "dates. An unknown field, a fixed one, or a value that does not suit refuses the whole call. "
             "Required fields left empty are named in the answer."_s,
             makeObjectSchema(properties, {u"name"_s, u"category"_s})},
        .handler = createEntity,
    };
}

Tool updateEntityTool()
{
    QJsonObject properties = entityContentProperties();
    properties.insert(u"new_name"_s, textProperty(u"A new name, for the entity alone."_s));
    properties.insert(
        u"category"_s, textProperty(u"The category to move it to, by name or id; null for none."_s));
    properties.insert(
        u"timed_values"_s,
        listProperty(
            u"States that hold from a date on; each is added, or replaces the one at that date."_s,
            recordProperty(
                u"A state."_s,
                {{u"field"_s, textProperty(u"The field's label."_s)},
                 {u"date"_s, textProperty(u"From when on, in the project's calendar."_s)},
                 {u"value"_s, valueProperty(u"The value from then on; null removes the state."_s)}},
                {u"field"_s, u"date"_s})));
    return {
        .access = ToolAccess::Changing,
        .title = u"Change an entity"_s,
        .hints = {.isDestructive = true, .isIdempotent = true},
        .spec =
            {u"update_entity"_s,
             u"Sparse update of one entity: only the provided keys change, absent keys leave the entity "
             "untouched. \"fields\" and \"references\" set the fields they name and no others; null or an "
             "empty text makes a field unset. \"aliases\" and \"tags\" replace the whole list. "
             "\"timed_values\" adds states that hold from a date on. \"new_name\" renames the entity itself "
             "and refuses a name that another entity has; to rename it everywhere it is written call "
             "rename_object. \"category\" moves it: values whose field does not reach it there are hidden, "
             "not lost. Call get_entity with \"full\": true before you rewrite a long value, or the part you "
             "have not seen is lost. Locked entities, entities excluded from AI and those of mounted "
             "libraries are refused."_s,
             makeSubjectSchema(u"name"_s, u"The entity's present name or an alias."_s, properties)},
        .subject = u"name"_s,
        .handler = updateEntity,
    };
}

} // namespace tw::app::mcp
