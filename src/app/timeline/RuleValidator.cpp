#include "app/timeline/ContinuityValidator.h"

#include "app/timeline/EntityName.h"
#include "app/timeline/RuleOperand.h"

#include <QCoreApplication>

namespace tw::app::timeline {

using core::entity::Entity;
using core::entity::ResolvedField;
using core::project::Project;
using core::taxonomy::Field;
using core::timeline::ContinuityRule;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Continuity", text);
}

std::optional<QString> valueRead(const ResolvedField& field, const Entity& entity, const ContinuityRule& rule)
{
    return rule.instant ? shownValueAt(field, entity, *rule.instant) : shownValue(field, entity);
}

/** "Ann's mood must be "glad"": a comparison that nobody knows is told by its own name and never holds. */
QString expectation(
    const ContinuityRule& rule, const QString& name, const codex::ValueConversion& values, const Field& field)
{
    const auto comparison = ruleComparisonFromKey(rule.comparison);
    const QString stated =
        translated(QT_TRANSLATE_NOOP("Continuity", "%1's %2 %3"))
            .arg(name, rule.fieldKey, comparison ? ruleComparisonPhrase(*comparison) : rule.comparison);
    if (comparison && !takesOperand(*comparison))
        return stated;
    QString operand = rule.value;
    if (comparison) {
        const QStringList words = operandInWords(values, field, *comparison, rule.value);
        operand = shownOperand(*comparison, operandOf(words));
    }
    return stated + translated(QT_TRANSLATE_NOOP("Continuity", " \"%1\"")).arg(operand);
}

} // namespace

std::vector<ContinuityConflict> validateRules(
    const Project& project, std::span<const ContinuityRule> rules, const codex::ObjectScope& scope)
{
    const codex::ScopedLookup lookup(project, scope);
    const codex::ValueConversion values(project, scope);
    std::vector<ContinuityConflict> conflicts;
    for (const ContinuityRule& rule : rules) {
        const auto* entity = lookup.findAs<Entity>(rule.entityId);
        if (!entity) {
            conflicts.push_back(
                {translated(
                     QT_TRANSLATE_NOOP(
                         "Continuity", "Rule \"%1\" refers to an entity that is no longer in the project."))
                     .arg(rule.name),
                 {}});
            continue;
        }
        if (lookup.isHidden(*entity))
            continue;
        const ResolvedField field = fieldOfRule(lookup, rule).value_or(ResolvedField());
        const auto value = valueRead(field, *entity, rule);
        const auto comparison = ruleComparisonFromKey(rule.comparison);
        if (comparison && ruleHolds(*comparison, value, rule.value))
            continue;
        conflicts.push_back(
            {translated(QT_TRANSLATE_NOOP("Continuity", "Rule \"%1\": %2, but is \"%3\"."))
                 .arg(
                     rule.name, expectation(rule, entityName(entity), values, field.field),
                     value ? values.inWords(field.field, *value)
                           : translated(QT_TRANSLATE_NOOP("Continuity", "(unset)"))),
             {rule.entityId}});
    }
    return conflicts;
}

} // namespace tw::app::timeline
