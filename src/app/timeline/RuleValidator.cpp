#include "app/timeline/ContinuityValidator.h"

#include "app/codex/ValueConversion.h"
#include "app/timeline/RuleComparison.h"
#include "app/timeline/ScopedLookup.h"
#include "core/entity/Schema.h"

#include <QCoreApplication>

#include <algorithm>
#include <functional>

namespace tw::app::timeline {

using core::entity::Entity;
using core::entity::ResolvedField;
using core::project::Project;
using core::timeline::ContinuityRule;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Continuity", text);
}

/** The field that a rule reads. One that no longer reaches the entity hides its value but keeps it. */
ResolvedField fieldRead(const Project& owner, const Entity& entity, const ContinuityRule& rule)
{
    const auto schema = schemaOfEntity(owner, entity);
    if (const ResolvedField* declared = findField(schema, rule.fieldKey))
        return *declared;
    ResolvedField hidden;
    hidden.field.key = rule.fieldKey;
    return hidden;
}

std::optional<QString> valueRead(const ResolvedField& field, const Entity& entity, const ContinuityRule& rule)
{
    return rule.instant ? shownValueAt(field, entity, *rule.instant) : shownValue(field, entity);
}

/** Makes names of ids and dates of instants. */
using ValueWords = std::function<QString(const QString& value)>;

/** "Ann's mood must be "glad"": a comparison that nobody knows is told by its own name and never holds. */
QString expectation(const ContinuityRule& rule, const QString& name, const ValueWords& inWords)
{
    const auto comparison = ruleComparisonFromKey(rule.comparison);
    const QString stated =
        translated(QT_TRANSLATE_NOOP("Continuity", "%1's %2 %3"))
            .arg(name, rule.fieldKey, comparison ? ruleComparisonPhrase(*comparison) : rule.comparison);
    if (comparison && !takesOperand(*comparison))
        return stated;
    QString operand = rule.value;
    if (comparison) {
        QStringList values = operandValues(*comparison, rule.value);
        std::ranges::transform(values, values.begin(), inWords);
        operand = shownOperand(*comparison, operandOf(values));
    }
    return stated + translated(QT_TRANSLATE_NOOP("Continuity", " \"%1\"")).arg(operand);
}

} // namespace

std::vector<ContinuityConflict> validateRules(
    const Project& project, std::span<const ContinuityRule> rules, const ContinuityScope& scope)
{
    const ScopedLookup lookup(project, scope);
    std::vector<ContinuityConflict> conflicts;
    for (const ContinuityRule& rule : rules) {
        const auto* entity = core::content::objectCast<Entity>(lookup.find(rule.entityId));
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
        const Project& owner = lookup.ownerOf(rule.entityId);
        const ResolvedField field = fieldRead(owner, *entity, rule);
        const auto value = valueRead(field, *entity, rule);
        const auto comparison = ruleComparisonFromKey(rule.comparison);
        if (comparison && ruleHolds(*comparison, value, rule.value))
            continue;
        const auto inWords = [values = codex::ValueConversion(owner), &field](const QString& stored) {
            return values.inWords(field.field, stored);
        };
        conflicts.push_back(
            {translated(QT_TRANSLATE_NOOP("Continuity", "Rule \"%1\": %2, but is \"%3\"."))
                 .arg(
                     rule.name, expectation(rule, entityName(entity), inWords),
                     value ? inWords(*value) : translated(QT_TRANSLATE_NOOP("Continuity", "(unset)"))),
             {rule.entityId}});
    }
    return conflicts;
}

} // namespace tw::app::timeline
