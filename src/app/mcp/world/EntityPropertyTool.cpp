#include "app/codex/FieldKeys.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/world/FieldValues.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"
#include "core/entity/EntityCommands.h"
#include "core/taxonomy/TaxonomyCommands.h"

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::entity::Entity;
using core::entity::Schema;
using core::taxonomy::Category;
using core::taxonomy::Field;
using core::taxonomy::FieldList;
using core::taxonomy::FieldType;
using workspace::Workspace;

namespace {

/** One call of entity_property. */
class PropertyEdit
{
public:
    PropertyEdit(ToolContext& context, Entity& entity, const ToolArguments& arguments)
        : m_context(context)
        , m_entity(entity)
        , m_arguments(arguments)
        , m_name(arguments.text(u"property").simplified())
    {}

    [[nodiscard]] McpToolResult run()
    {
        if (m_name.isEmpty())
            return McpToolResult::failure(u"A non-empty name is required."_s);
        const QString action = m_arguments.text(u"action", u"add"_s);
        if (action == "add"_L1)
            return add();
        const Field* const own = codex::findFieldNamed(m_entity.ownFields(), m_name);
        if (!own) {
            return McpToolResult::failure(
                u"'%1' has no property '%2' of its own."_s.arg(m_entity.name(), m_name));
        }
        return action == "remove"_L1 ? remove(*own) : promote(*own);
    }

private:
    template <class Command, class... Arguments>
    void push(Arguments&&... arguments)
    {
        m_context.workspace.undoStack().push(
            std::make_unique<Command>(std::forward<Arguments>(arguments)...));
    }

    [[nodiscard]] McpToolResult apply(const std::function<McpToolResult()>& body)
    {
        return applyAsUndoStep(m_context.workspace, m_context.changeLog, u"MCP: entity property"_s, body);
    }

    void setOwnFields(FieldList fields)
    {
        push<core::entity::SetEntityOwnFieldsCommand>(m_entity, std::move(fields));
    }

    [[nodiscard]] FieldList ownFieldsWithout(const QString& key) const
    {
        FieldList fields = m_entity.ownFields();
        std::erase_if(fields, [&key](const Field& field) { return field.key == key; });
        return fields;
    }

    /** Without a key when the name holds nothing to make one of. */
    [[nodiscard]] Field newField(const Schema& inherited) const
    {
        return {.key = codex::keyForNewField(m_name, m_entity.ownFields(), inherited), .label = m_name};
    }

    [[nodiscard]] Result<Field> readField() const
    {
        const Workspace& workspace = m_context.workspace;
        const Schema inherited = core::entity::schemaOfCategory(workspace.project(), m_entity.categoryId());
        const Field* const present = codex::findFieldNamed(m_entity.ownFields(), m_name);
        // What the call cannot name stays as it is.
        Field field = present ? *present : newField(inherited);
        if (field.key.isEmpty())
            return Failure{
                u"'%1' holds no letter or digit; give the property a name with one."_s.arg(m_name)};
        const auto type = readFieldType(m_arguments, present ? present->type : FieldType::Text);
        if (!type)
            return Failure{type.message()};
        field.type = type.value();
        if (field.label.compare(m_name, Qt::CaseInsensitive) == 0)
            field.label = m_name;
        field.description = m_arguments.text(u"description", field.description);
        if (field.type != FieldType::Reference)
            field.referenceCategory = {};
        if (field.type != FieldType::Choice)
            field.options.clear();
        else if (m_arguments.has(u"options"))
            field.options = tidied(m_arguments.textList(u"options"));
        if (field.type == FieldType::Choice && field.options.isEmpty())
            return Failure{u"A choice field needs a non-empty \"options\" array."_s};
        if (auto checked = core::entity::checkOwnField(workspace.project(), m_entity, field); !checked)
            return Failure{checked.message()};
        return field;
    }

    [[nodiscard]] McpToolResult add()
    {
        const Workspace& workspace = m_context.workspace;
        const auto field = readField();
        if (!field)
            return McpToolResult::failure(field.message());
        const auto value = readFieldValue(workspace, field.value(), m_arguments.text(u"value"));
        if (!value)
            return McpToolResult::failure(value.message());
        FieldList fields = m_entity.ownFields();
        const auto present = std::ranges::find(fields, field.value().key, &Field::key);
        const bool isNew = present == fields.end();
        if (isNew)
            fields.push_back(field.value());
        else
            *present = field.value();
        const QString notice =
            isNew ? core::entity::ownFieldNotice(workspace.project(), m_entity, field.value()) : QString();
        return apply([&] {
            const auto before = m_context.workspace.undoStack().position();
            if (fields != m_entity.ownFields())
                setOwnFields(fields);
            const QString key = field.value().key;
            if (m_arguments.has(u"value") && m_entity.value(key).value_or(QString()) != value.value()) {
                push<core::entity::SetFieldValueCommand>(
                    m_entity, key, value.value().isEmpty() ? std::nullopt : std::optional(value.value()));
            }
            if (m_context.workspace.undoStack().position() == before) {
                return McpToolResult::success(
                    u"Property '%1' of '%2' already matches; nothing changed."_s.arg(
                        m_name, m_entity.name()));
            }
            const QString text =
                isNew ? u"Added property '%1' to '%2'."_s : u"Updated property '%1' of '%2'."_s;
            return McpToolResult::success(
                text.arg(m_name, m_entity.name()) + (notice.isEmpty() ? notice : u' ' + notice));
        });
    }

    [[nodiscard]] McpToolResult remove(const Field& own)
    {
        const QString answer = u"Removed property '%1' from '%2'. Values already entered are kept."_s.arg(
            own.displayName(), m_entity.name());
        FieldList fields = ownFieldsWithout(own.key);
        return apply([&] {
            setOwnFields(std::move(fields));
            return McpToolResult::success(answer);
        });
    }

    [[nodiscard]] McpToolResult promote(const Field& own)
    {
        const Category* const category =
            m_context.workspace.project().taxonomy().category(m_entity.categoryId());
        if (!category) {
            return McpToolResult::failure(
                u"'%1' is in no category, so there is nothing to promote '%2' to. Move it to one with update_entity first."_s
                    .arg(m_entity.name(), own.displayName()));
        }
        if (core::taxonomy::indexOfField(*category, own.key)) {
            return McpToolResult::failure(
                u"'%1' already has a field '%2'; remove the entity's own version instead."_s.arg(
                    category->name, own.displayName()));
        }
        const QString answer = u"Promoted '%1' to '%2'."_s.arg(own.displayName(), category->name);
        FieldList fields = ownFieldsWithout(own.key);
        return apply([&] {
            push<core::taxonomy::AddFieldCommand>(
                m_context.workspace.projectForEdit(), category->id, own, category->fields.size());
            setOwnFields(std::move(fields));
            return McpToolResult::success(answer);
        });
    }

    ToolContext& m_context;
    Entity& m_entity;
    const ToolArguments& m_arguments;
    QString m_name;
};

McpToolResult entityProperty(ToolContext& context, const ToolArguments& arguments)
{
    const auto entity = findForChange<Entity>(context.workspace, arguments, u"entity");
    if (!entity)
        return McpToolResult::failure(entity.message());
    return PropertyEdit(context, *entity.value(), arguments).run();
}

} // namespace

Tool entityPropertyTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Property of one entity"_s,
        .hints = {.isDestructive = true},
        .spec =
            {u"entity_property"_s,
             u"A property that belongs to ONE entity -- Vaertis's noble houses, not every kingdom's. "
             "\"action\" is add (default), remove, or promote. add defines the property on the entity, with "
             "\"type\" (default text), \"options\" for a choice, \"description\", and its \"value\" in the "
             "same call; one that is already there is changed. A property of the same name that the category "
             "gives is overridden for this entity alone, unless it is fixed there, which is refused. remove "
             "takes the definition away and keeps the value, hidden. promote moves the definition up to the "
             "entity's category, so that every entity in it gets the field; values stay. For a field of a "
             "whole category use add_field; to set the value of a property that exists use update_entity."_s,
             makeSubjectSchema(
                 u"entity"_s, u"The entity's name."_s,
                 {{u"property"_s, textProperty(u"The property's name as people see it."_s)},
                  {u"action"_s,
                   choiceProperty(u"What to do."_s, {u"add"_s, u"remove"_s, u"promote"_s}, Default::First)},
                  {u"type"_s,
                   fieldTypeProperty(u"What its values are; text for a new property."_s, Default::None)},
                  {u"options"_s, listProperty(u"The choices of a choice."_s, textProperty(u"A choice."_s))},
                  {u"value"_s, valueProperty(u"Its value; null makes it unset."_s)},
                  {u"description"_s, textProperty(u"What the property is for."_s)}},
                 {u"property"_s})},
        .subject = u"entity"_s,
        .refusedByHandler = {u"type"_s},
        .handler = entityProperty,
    };
}

} // namespace tw::app::mcp
