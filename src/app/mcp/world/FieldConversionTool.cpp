#include "app/codex/FieldConversion.h"
#include "app/mcp/registry/Display.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/world/FieldValues.h"
#include "app/mcp/world/OwnedField.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using codex::ConversionPlan;
using codex::ConversionRequest;
using core::taxonomy::Category;
using core::taxonomy::Field;
using core::taxonomy::FieldType;

namespace {

/** What kept values lack. */
QString lackOf(FieldType type)
{
    switch (type) {
    case FieldType::Reference:
        return u"name no entity"_s;
    case FieldType::Number:
        return u"are no number"_s;
    case FieldType::Boolean:
        return u"are neither true nor false"_s;
    case FieldType::Date:
        return u"are no date of the calendar"_s;
    case FieldType::Choice:
        return u"are none of the options"_s;
    case FieldType::Text:
    case FieldType::Url:
        break;
    }
    return u"do not suit"_s;
}

QString convertedText(
    const Category& category, const Field& before, const ConversionRequest& request,
    const ConversionPlan& plan)
{
    QString text = u"Converted field '%1' on '%2' from %3 to %4. Migrated %5 value(s)."_s.arg(
        before.displayName(), category.name, core::taxonomy::fieldTypeName(before.type),
        core::taxonomy::fieldTypeName(request.type), QString::number(plan.migratedCount));
    if (!plan.kept.isEmpty()) {
        QStringList kept;
        for (const QString& value : plan.kept)
            kept.append(shortenForDisplay(value));
        text += u" Kept %1 value(s) that %2, as literal text: %3."_s.arg(
            QString::number(kept.size()), lackOf(request.type), quotedList(kept));
    }
    if (plan.ruleCount > 0) {
        text +=
            u" Converted what %1 continuity rule(s) compare it with."_s.arg(QString::number(plan.ruleCount));
    }
    for (const ConversionPlan::KeptOperand& kept : plan.keptOperands) {
        text += u" The continuity rule '%1' still compares it with the literal text '%2'."_s.arg(
            kept.rule, shortenForDisplay(kept.value));
    }
    if (plan.untouchedCount > 0) {
        text += u" Left %1 value(s) of locked entities or entities excluded from AI as they were."_s.arg(
            QString::number(plan.untouchedCount));
    }
    return text;
}

McpToolResult convertField(ToolContext& context, const ToolArguments& arguments)
{
    const workspace::Workspace& workspace = context.workspace;
    const auto found = findCategoryForChange(workspace, arguments.text(u"category"));
    if (!found)
        return McpToolResult::failure(found.message());
    const Category& category = *found.value();
    const auto field = findOwnField(workspace, category, arguments.text(u"field"), u"convert it on"_s);
    if (!field)
        return McpToolResult::failure(field.message());
    const Field before = *field.value();
    const auto type = readFieldType(arguments, before.type);
    if (!type)
        return McpToolResult::failure(type.message());
    if (type.value() == before.type) {
        return McpToolResult::success(u"Field '%1' on '%2' is already a %3 field; nothing changed."_s.arg(
            before.displayName(), category.name, core::taxonomy::fieldTypeName(before.type)));
    }
    const auto target = readReferenceCategory(workspace, arguments);
    if (!target)
        return McpToolResult::failure(target.message());
    const ConversionRequest request{
        category.id, before.key, type.value(), tidied(arguments.textList(u"options")), target.value()};
    if (request.type == FieldType::Choice && request.options.isEmpty())
        return McpToolResult::failure(u"Converting to a choice field needs a non-empty \"options\" array."_s);
    const ConversionPlan plan =
        codex::planConversion(workspace.project(), request, assistantScope(workspace));
    const QString answer = convertedText(category, before, request, plan);
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: convert field"_s, [&] {
        plan.edits.push(context.workspace.projectForEdit(), context.workspace.undoStack());
        return McpToolResult::success(answer);
    });
}

} // namespace

Tool convertFieldTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Convert a field"_s,
        .hints = {.isDestructive = true, .isIdempotent = true},
        .spec =
            {u"convert_field"_s,
             u"Changes a category's OWN field to a new type (text/number/boolean/date/reference/choice/url) "
             "-- the way to make a field created as text (e.g. \"Spouse\") a real reference, with the values "
             "already entered taken along. Converts the current values and the states over time of every "
             "entity that has the field, those of templates, and what continuity rules compare the field "
             "with: names become references, dates of the project's calendar become dates, \"yes\" and "
             "\"no\" become true and false, and back into words again. A value that does not suit the new "
             "type is never lost: it stays as literal text, and "
             "the answer lists it. \"options\" is needed for a choice, \"reference_category\" limits a "
             "reference. Converting to the type that the field already has changes nothing. An inherited "
             "field is converted on the category that defines it; get_category says which. Values of locked "
             "entities and entities excluded from AI stay as they are."_s,
             makeObjectSchema(
                 {{u"category"_s, textProperty(u"The category that defines the field, by name or id."_s)},
                  {u"field"_s, textProperty(u"The field's label or key."_s)},
                  {u"type"_s, fieldTypeProperty(u"The new type."_s, Default::None)},
                  {u"options"_s,
                   listProperty(u"The choices of a choice field."_s, textProperty(u"A choice."_s))},
                  {u"reference_category"_s, textProperty(u"The category a reference may point into."_s)}},
                 {u"category"_s, u"field"_s, u"type"_s})},
        .refusedByHandler = {u"type"_s},
        .handler = convertField,
    };
}

} // namespace tw::app::mcp
