#pragma once

#include "app/codex/ValueConversion.h"
#include "app/timeline/RuleComparison.h"
#include "core/entity/Schema.h"
#include "core/timeline/ContinuityRule.h"

namespace tw::app::timeline {

/**
 * The field that a rule reads: without a label and of type text when it no longer reaches the entity, which
 * hides its value but keeps it. None when the entity is gone.
 */
[[nodiscard]] std::optional<core::entity::ResolvedField> fieldOfRule(
    const codex::ScopedLookup& lookup, const core::timeline::ContinuityRule& rule);

/**
 * Whether what a comparison compares with has to be a value of the field, in the form in which the field
 * stores it; if not, it is any text. What a field merely contains may be a part of a value.
 */
[[nodiscard]] bool comparesWithValues(RuleComparison comparison, core::taxonomy::FieldType type);

/** The values that a stored operand stands for, in words that storedOperand() understands. */
[[nodiscard]] QStringList operandInWords(
    const codex::ValueConversion& values, const core::taxonomy::Field& field, RuleComparison comparison,
    const QString& operand);

/** An operand as rules keep it. */
struct StoredOperand
{
    QString operand;
    /** The values among it that do not suit the field. They stand in the operand as they were written. */
    QStringList unsuited;
};

[[nodiscard]] StoredOperand storedOperand(
    const codex::ValueConversion& values, const core::taxonomy::Field& field, RuleComparison comparison,
    const QStringList& words);

} // namespace tw::app::timeline
