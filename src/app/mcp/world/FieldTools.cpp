#include "app/codex/CategoryEdits.h"
#include "app/codex/FieldKeys.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/world/FieldValues.h"
#include "app/mcp/world/OwnedField.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"
#include "core/taxonomy/TaxonomyCommands.h"

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::taxonomy::Category;
using core::taxonomy::Field;
using core::taxonomy::FieldType;
using workspace::Workspace;

namespace {

/** The definition that add_field's arguments describe, with a key that suits the category. */
Result<Field> readField(const Workspace& workspace, const Category& category, const ToolArguments& arguments)
{
    Field field;
    field.label = arguments.text(u"label").simplified();
    const Field* const present = codex::findFieldNamed(category.fields, field.label);
    field.key =
        present ? present->key
                : codex::keyForNewField(
                      field.label, category.fields, codex::fieldsFromAbove(workspace.project(), category));
    if (field.label.isEmpty())
        return Failure{u"A non-empty \"label\" is required."_s};
    if (field.key.isEmpty()) {
        return Failure{
            u"'%1' holds no letter or digit; give the field a \"label\" with one."_s.arg(field.label)};
    }
    const auto type = readFieldType(arguments, FieldType::Text);
    if (!type)
        return Failure{type.message()};
    field.type = type.value();
    field.isRequired = arguments.boolean(u"required");
    field.isFixed = arguments.boolean(u"fixed");
    field.description = arguments.text(u"description").trimmed();
    if (field.type == FieldType::Choice)
        field.options = tidied(arguments.textList(u"options"));
    if (field.type == FieldType::Choice && field.options.isEmpty())
        return Failure{u"A choice field needs a non-empty \"options\" array."_s};
    const auto target = readReferenceCategory(workspace, arguments);
    if (!target)
        return Failure{target.message()};
    if (field.type == FieldType::Reference)
        field.referenceCategory = target.value();
    if (auto checked = core::taxonomy::checkField(field); !checked)
        return Failure{checked.message()};
    const auto fixedValue = readFieldValue(workspace, field, arguments.text(u"fixed_value"));
    if (!fixedValue)
        return Failure{fixedValue.message()};
    if (field.isFixed)
        field.fixedValue = fixedValue.value();
    else if (!fixedValue.value().isEmpty())
        return Failure{u"\"fixed_value\" is only for a field with \"fixed\": true."_s};
    return field;
}

McpToolResult addField(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findCategoryForChange(context.workspace, arguments.text(u"category"));
    if (!found)
        return McpToolResult::failure(found.message());
    const Category& category = *found.value();
    const auto field = readField(context.workspace, category, arguments);
    if (!field)
        return McpToolResult::failure(field.message());
    const auto present = core::taxonomy::findField(category.fields, field.value().key);
    const QString label = field.value().label;
    if (present != category.fields.end() && *present == field.value()) {
        return McpToolResult::success(
            u"Field '%1' on '%2' already matches; nothing changed."_s.arg(label, category.name));
    }
    const QString text =
        present == category.fields.end() ? u"Added field '%1' to '%2'."_s : u"Replaced field '%1' on '%2'."_s;
    const QString answer = text.arg(label, category.name);
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: add field"_s, [&] {
        codex::EditPlan plan;
        if (present != category.fields.end()) {
            codex::planReplaceField(plan, category, field.value());
        } else {
            plan.add([&](core::project::Project& project) {
                return std::make_unique<core::taxonomy::AddFieldCommand>(
                    project, category.id, field.value(), category.fields.size());
            });
        }
        plan.push(context.workspace.projectForEdit(), context.workspace.undoStack());
        return McpToolResult::success(answer);
    });
}

McpToolResult removeField(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findCategoryForChange(context.workspace, arguments.text(u"category"));
    if (!found)
        return McpToolResult::failure(found.message());
    const Category& category = *found.value();
    const auto field =
        findOwnField(context.workspace, category, arguments.text(u"field"), u"remove it from"_s);
    if (!field)
        return McpToolResult::failure(field.message());
    const QString answer = u"Removed field '%1' from '%2'. Values already entered are kept."_s.arg(
        field.value()->displayName(), category.name);
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: remove field"_s, [&] {
        context.workspace.undoStack().push(std::make_unique<core::taxonomy::RemoveFieldCommand>(
            context.workspace.projectForEdit(), category.id, field.value()->key));
        return McpToolResult::success(answer);
    });
}

/** The position that a field gets among the category's own ones, counted without itself. */
Result<std::size_t> readPosition(
    const Workspace& workspace, const Category& category, const Field& field, const ToolArguments& arguments)
{
    const QString before = arguments.text(u"before").trimmed();
    const QString after = arguments.text(u"after").trimmed();
    const auto index = arguments.integer(u"index");
    if ((index ? 1 : 0) + (before.isEmpty() ? 0 : 1) + (after.isEmpty() ? 0 : 1) != 1)
        return Failure{u"Pass exactly one of \"index\", \"before\", or \"after\"."_s};
    const std::size_t last = category.fields.size() - 1;
    if (index)
        return static_cast<std::size_t>(std::clamp<qint64>(*index, 0, static_cast<qint64>(last)));
    const auto anchor = findOwnField(workspace, category, before.isEmpty() ? after : before, u"move it on"_s);
    if (!anchor)
        return Failure{anchor.message()};
    const std::size_t own = core::taxonomy::indexOfField(category, field.key).value_or(0);
    const std::size_t place = core::taxonomy::indexOfField(category, anchor.value()->key).value_or(0);
    if (place == own)
        return own;
    const std::size_t withoutItself = place > own ? place - 1 : place;
    return before.isEmpty() ? withoutItself + 1 : withoutItself;
}

McpToolResult moveField(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findCategoryForChange(context.workspace, arguments.text(u"category"));
    if (!found)
        return McpToolResult::failure(found.message());
    const Category& category = *found.value();
    const auto field = findOwnField(context.workspace, category, arguments.text(u"field"), u"move it on"_s);
    if (!field)
        return McpToolResult::failure(field.message());
    const auto position = readPosition(context.workspace, category, *field.value(), arguments);
    if (!position)
        return McpToolResult::failure(position.message());
    const QString label = field.value()->displayName();
    const QString number = QString::number(position.value());
    if (core::taxonomy::indexOfField(category, field.value()->key) == position.value()) {
        return McpToolResult::success(u"Field '%1' on '%2' is already at position %3; nothing changed."_s.arg(
            label, category.name, number));
    }
    const QString answer = u"Moved field '%1' on '%2' to position %3."_s.arg(label, category.name, number);
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: move field"_s, [&] {
        context.workspace.undoStack().push(std::make_unique<core::taxonomy::MoveFieldCommand>(
            context.workspace.projectForEdit(), category.id, field.value()->key, position.value()));
        return McpToolResult::success(answer);
    });
}

} // namespace

Tool addFieldTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Define a field"_s,
        .hints = {.isIdempotent = true},
        .spec =
            {u"add_field"_s,
             u"Defines a typed field on a codex category's schema (or replaces the same-named field already "
             "on it). \"label\" is what people see; \"type\" is text (default), number, boolean, date, "
             "reference, choice or url. A choice needs \"options\"; a reference may be limited to the "
             "entities of \"reference_category\" and what lies beneath it. \"required\" marks the field as "
             "one to fill in. \"fixed\": true with \"fixed_value\" gives every entity beneath the category "
             "that one value, read-only; a field cannot be both fixed and required. Every category beneath "
             "inherits the field. Replacing keeps its place and takes the whole definition from this call; "
             "values already entered stay as they are, so call convert_field instead when the type changes. "
             "For a property of a single entity use entity_property. Call get_category first to see what is "
             "there and what is inherited."_s,
             makeObjectSchema(
                 {{u"category"_s, textProperty(u"The category that gets the field, by name or id."_s)},
                  {u"label"_s, textProperty(u"The field's name as people see it."_s)},
                  {u"type"_s, fieldTypeProperty(u"What its values are."_s, Default::First)},
                  {u"options"_s,
                   listProperty(u"The choices of a choice field."_s, textProperty(u"A choice."_s))},
                  {u"required"_s, booleanProperty(u"Whether every entity should fill it in."_s)},
                  {u"fixed"_s, booleanProperty(u"Whether the category gives the value."_s)},
                  {u"fixed_value"_s, valueProperty(u"The value of a fixed field."_s)},
                  {u"description"_s, textProperty(u"What the field is for."_s)},
                  {u"reference_category"_s, textProperty(u"The category a reference may point into."_s)}},
                 {u"category"_s, u"label"_s})},
        .refusedByHandler = {u"type"_s},
        .handler = addField,
    };
}

Tool removeFieldTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Remove a field"_s,
        .hints = {.isDestructive = true},
        .spec =
            {u"remove_field"_s,
             u"Removes a field from a codex category's own schema. Values already entered are kept -- but "
             "nothing will show them until a field of the same name is defined again or the call is undone. "
             "An inherited field is refused with the category that defines it; to drop one for this branch "
             "only, name it in update_category's \"excluded\". A field can be named by its label or its key, "
             "as get_category lists it."_s,
             makeObjectSchema(
                 {{u"category"_s, textProperty(u"The category that defines the field, by name or id."_s)},
                  {u"field"_s, textProperty(u"The field's label or key."_s)}},
                 {u"category"_s, u"field"_s})},
        .handler = removeField,
    };
}

Tool moveFieldTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Reorder a field"_s,
        .hints = {.isIdempotent = true},
        .spec =
            {u"move_field"_s,
             u"Reorders a field within a codex category's own schema, changing the order fields are shown. "
             "Pass exactly one of \"index\" (the 0-based position among the category's own fields; beyond "
             "the end is the end), \"before\", or \"after\" (another own field). Inherited fields come "
             "before a category's own ones and are ordered where they are defined. Call get_category first "
             "to see the order."_s,
             makeObjectSchema(
                 {{u"category"_s, textProperty(u"The category that defines the field, by name or id."_s)},
                  {u"field"_s, textProperty(u"The field to move: its label or key."_s)},
                  {u"index"_s, integerProperty(u"The position it gets, from 0."_s)},
                  {u"before"_s, textProperty(u"The field it goes in front of."_s)},
                  {u"after"_s, textProperty(u"The field it goes behind."_s)}},
                 {u"category"_s, u"field"_s})},
        .handler = moveField,
    };
}

} // namespace tw::app::mcp
