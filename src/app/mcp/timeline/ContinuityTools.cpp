#include "app/mcp/timeline/ContinuityTools.h"

#include "app/mcp/references/ReferenceNames.h"
#include "app/mcp/registry/Display.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/world/FieldValues.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/timeline/ContinuityValidator.h"
#include "app/timeline/RuleOperand.h"
#include "core/entity/Entity.h"
#include "core/timeline/TimelineCommands.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::entity::Entity;
using core::project::Project;
using core::taxonomy::Field;
using core::timeline::ContinuityRule;
using timeline::ContinuityConflict;
using timeline::RuleComparison;
using workspace::Workspace;

namespace {

using RuleList = std::vector<ContinuityRule>;

QStringList namesOf(const RuleList& rules)
{
    QStringList names;
    for (const ContinuityRule& rule : rules)
        names += rule.name;
    return names;
}

bool isAboutHiddenEntity(const Workspace& workspace, const ContinuityRule& rule)
{
    const auto found = resolveById(
        workspace, rule.entityId.toString(), kindWord(core::content::ContentKind::Entity), Purpose::Read);
    return !found && workspace.project().contains(rule.entityId);
}

/** An entity's field, by key or by label; one that hides its value is known by its key alone. */
Result<Field> fieldNamed(const Workspace& workspace, const FoundObject& found, const QString& name)
{
    const auto& entity = static_cast<const Entity&>(*found.object);
    const Project& owner = found.library ? *found.library->project : workspace.project();
    const auto schema = schemaOfEntity(owner, entity);
    if (const auto* declared = findField(schema, name))
        return declared->field;
    QStringList labels;
    for (const core::entity::ResolvedField& declared : schema)
        labels += declared.field.displayName();
    const auto chosen = chooseByName(labels, name, u"field"_s);
    if (chosen)
        return schema[chosen.value()].field;
    Field hidden;
    hidden.key = name;
    if (entity.value(name))
        return hidden;
    return Failure{u"'%1' has no field '%2'."_s.arg(entity.name(), name)};
}

/** What the rule compares with, in words: names for ids, dates for instants. */
QString operandText(const Workspace& workspace, const ContinuityRule& rule, RuleComparison comparison)
{
    const auto entity = resolveById(
        workspace, rule.entityId.toString(), kindWord(core::content::ContentKind::Entity), Purpose::Read);
    const auto field =
        entity ? fieldNamed(workspace, entity.value(), rule.fieldKey) : Failure{entity.message()};
    if (!field)
        return shownOperand(comparison, rule.value);
    QStringList values;
    for (const QString& value : timeline::operandValues(comparison, rule.value))
        values += valueText(workspace, field.value(), value);
    return shownOperand(comparison, timeline::operandOf(values));
}

/** What is stored for an operand: as the field's own values are, where the rule compares with those. */
Result<QString> readOperand(
    const Workspace& workspace, const Field& field, RuleComparison comparison, const QString& text)
{
    if (!comparesWithValues(comparison, field.type))
        return text;
    QStringList values;
    for (const QString& value : timeline::operandValues(comparison, text)) {
        const auto stored = readFieldValue(workspace, field, value);
        if (!stored)
            return stored;
        values += stored.value();
    }
    return timeline::operandOf(values);
}

QString ruleText(const Workspace& workspace, const ContinuityRule& rule)
{
    const QString entity = referenceName(workspace, rule.entityId);
    // What the writer asks of an entity says as much of it as its fields do.
    if (isAboutHiddenEntity(workspace, rule))
        return u"- %1: %2"_s.arg(rule.name, entity);
    const auto comparison = timeline::ruleComparisonFromKey(rule.comparison);
    QString text = u"- %1: %2's %3 %4"_s.arg(
        rule.name, entity, rule.fieldKey,
        comparison ? ruleComparisonPhrase(*comparison) : u"(unknown comparison '%1')"_s.arg(rule.comparison));
    if (!comparison || takesOperand(*comparison))
        text += u" \"%1\""_s.arg(comparison ? operandText(workspace, rule, *comparison) : rule.value);
    return text + (rule.instant ? u", on %1"_s.arg(dateText(workspace.project(), *rule.instant))
                                : u", at any time"_s);
}

Result<ContinuityRule> readRule(const Workspace& workspace, const ToolArguments& arguments)
{
    const RuleList& rules = workspace.project().continuityRules();
    ContinuityRule rule;
    rule.name = arguments.text(u"name").trimmed();
    if (const auto checked = checkNameText(rule.name); !checked)
        return Failure{checked.message()};
    if (countNamed(namesOf(rules), rule.name) > 0)
        return Failure{u"A continuity rule named '%1' already exists."_s.arg(rule.name)};
    const auto entity = resolveByName(
        workspace, arguments.text(u"entity"), kindWord(core::content::ContentKind::Entity), Purpose::Refer);
    if (!entity)
        return Failure{entity.message()};
    rule.entityId = entity.value().object->id();
    const auto field = fieldNamed(workspace, entity.value(), arguments.text(u"field"));
    if (!field)
        return Failure{field.message()};
    rule.fieldKey = field.value().key;
    rule.comparison = arguments.text(u"comparison", ruleComparisonKey(RuleComparison::Equals));
    const auto comparison = timeline::ruleComparisonFromKey(rule.comparison);
    if (comparison && takesOperand(*comparison)) {
        if (!arguments.has(u"value") || arguments.isNull(u"value"))
            return Failure{
                u"create_continuity_rule needs \"value\" for the comparison %1."_s.arg(rule.comparison)};
        const auto operand = readOperand(workspace, field.value(), *comparison, arguments.text(u"value"));
        if (!operand)
            return Failure{operand.message()};
        rule.value = operand.value();
    }
    if (const QString date = arguments.text(u"date"); !date.isEmpty()) {
        const auto instant = readDate(workspace.project(), date);
        if (!instant)
            return Failure{instant.message()};
        rule.instant = instant.value();
    }
    return rule;
}

} // namespace

McpToolResult getConflicts(ToolContext& context, const ToolArguments& /*arguments*/)
{
    const Project& project = context.workspace.project();
    const codex::ObjectScope scope = assistantScope(context.workspace);
    std::vector<ContinuityConflict> conflicts = timeline::validateTimeline(project, scope);
    const auto broken = timeline::validateRules(project, project.continuityRules(), scope);
    conflicts.insert(conflicts.end(), broken.begin(), broken.end());
    if (conflicts.empty())
        return McpToolResult::success(u"No conflicts found."_s);
    QStringList lines;
    for (const ContinuityConflict& conflict : conflicts)
        lines += u"%1. %2"_s.arg(QString::number(lines.size() + 1), conflict.message);
    return McpToolResult::success(lines.join(u'\n'));
}

McpToolResult listContinuityRules(ToolContext& context, const ToolArguments& /*arguments*/)
{
    QStringList lines;
    for (const ContinuityRule& rule : context.workspace.project().continuityRules())
        lines += ruleText(context.workspace, rule);
    return McpToolResult::success(
        lines.isEmpty() ? u"There are no continuity rules in this project."_s : lines.join(u'\n'));
}

McpToolResult createContinuityRule(ToolContext& context, const ToolArguments& arguments)
{
    Project& project = context.workspace.projectForEdit();
    const auto rule = readRule(context.workspace, arguments);
    if (!rule)
        return McpToolResult::failure(rule.message());
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: create continuity rule"_s, [&] {
        RuleList rules = project.continuityRules();
        rules.push_back(rule.value());
        context.workspace.undoStack().push(
            std::make_unique<core::timeline::SetContinuityRulesCommand>(project, std::move(rules)));
        QString text = u"Created continuity rule '%1'."_s.arg(rule.value().name);
        const auto broken =
            timeline::validateRules(project, std::span(&rule.value(), 1), assistantScope(context.workspace));
        for (const ContinuityConflict& conflict : broken)
            text += u" It does not hold now: %1"_s.arg(conflict.message);
        return McpToolResult::success(text);
    });
}

McpToolResult deleteContinuityRule(ToolContext& context, const ToolArguments& arguments)
{
    Project& project = context.workspace.projectForEdit();
    RuleList rules = project.continuityRules();
    const auto chosen = chooseByName(namesOf(rules), arguments.text(u"name"), u"continuity rule"_s);
    if (!chosen)
        return McpToolResult::failure(chosen.message());
    const QString name = rules[chosen.value()].name;
    rules.erase(rules.begin() + static_cast<std::ptrdiff_t>(chosen.value()));
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: delete continuity rule"_s, [&] {
        context.workspace.undoStack().push(
            std::make_unique<core::timeline::SetContinuityRulesCommand>(project, std::move(rules)));
        return McpToolResult::success(u"Deleted continuity rule '%1'."_s.arg(name));
    });
}

} // namespace tw::app::mcp
