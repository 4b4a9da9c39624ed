#include "app/timeline/RuleOperand.h"

#include "core/entity/Entity.h"

namespace tw::app::timeline {

using codex::ValueConversion;
using core::entity::Entity;
using core::entity::ResolvedField;
using core::taxonomy::Field;
using core::taxonomy::FieldType;
using core::timeline::ContinuityRule;

std::optional<ResolvedField> fieldOfRule(const codex::ScopedLookup& lookup, const ContinuityRule& rule)
{
    const auto* const entity = lookup.findAs<Entity>(rule.entityId);
    if (!entity)
        return std::nullopt;
    const auto schema = schemaOfEntity(lookup.ownerOf(rule.entityId), *entity);
    if (const ResolvedField* declared = findField(schema, rule.fieldKey))
        return *declared;
    ResolvedField hidden;
    hidden.field.key = rule.fieldKey;
    return hidden;
}

bool comparesWithValues(RuleComparison comparison, FieldType type)
{
    // Nobody writes a part of an id or of an instant.
    return type == FieldType::Reference || type == FieldType::Date ||
           (comparison != RuleComparison::Contains && comparison != RuleComparison::NotContains);
}

QStringList operandInWords(
    const ValueConversion& values, const Field& field, RuleComparison comparison, const QString& operand)
{
    QStringList words = operandValues(comparison, operand);
    for (QString& value : words)
        value = values.inWords(field, value);
    return words;
}

StoredOperand storedOperand(
    const ValueConversion& values, const Field& field, RuleComparison comparison, const QStringList& words)
{
    StoredOperand result;
    QStringList stored = words;
    for (QString& value : stored) {
        if (value.trimmed().isEmpty() || !comparesWithValues(comparison, field.type))
            continue;
        if (const auto suited = values.stored(field, value))
            value = *suited;
        else
            result.unsuited.append(value);
    }
    result.operand = operandOf(stored);
    return result;
}

} // namespace tw::app::timeline
