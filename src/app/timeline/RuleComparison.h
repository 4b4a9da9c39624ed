#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>
#include <optional>

namespace tw::app::timeline {

/** How a continuity rule compares a field. Values and keys are part of the file format. */
enum class RuleComparison : qint32
{
    Equals = 0,
    NotEquals = 1,
    Contains = 2,
    NotContains = 3,
    LessThan = 4,
    LessOrEqual = 5,
    GreaterThan = 6,
    GreaterOrEqual = 7,
    IsEmpty = 8,
    IsNonEmpty = 9,
    OneOf = 10,
};

/** Every comparison, in order of its value. */
inline constexpr std::array allRuleComparisons{
    RuleComparison::Equals,      RuleComparison::NotEquals,      RuleComparison::Contains,
    RuleComparison::NotContains, RuleComparison::LessThan,       RuleComparison::LessOrEqual,
    RuleComparison::GreaterThan, RuleComparison::GreaterOrEqual, RuleComparison::IsEmpty,
    RuleComparison::IsNonEmpty,  RuleComparison::OneOf,
};

/** "equals", "oneOf", ... as files and tools write it. */
[[nodiscard]] QLatin1String ruleComparisonKey(RuleComparison comparison);
/** Exact and case-sensitive; none for an unknown key. */
[[nodiscard]] std::optional<RuleComparison> ruleComparisonFromKey(QStringView key);

/** "must be", "must be one of", ..., in the user's language. */
[[nodiscard]] QString ruleComparisonPhrase(RuleComparison comparison);

/** False for those that look at the field alone. */
[[nodiscard]] bool takesOperand(RuleComparison comparison);

/** Whether a value, none when the field is unset, satisfies the comparison. Numbers are read in the C locale.
 */
[[nodiscard]] bool ruleHolds(
    RuleComparison comparison, const std::optional<QString>& value, const QString& operand);

/** The operand as a sentence shows it: of a list its pieces, joined by a comma and a blank. */
[[nodiscard]] QString shownOperand(RuleComparison comparison, const QString& operand);

/** The values that an operand stands for: the pieces of a list, else itself. */
[[nodiscard]] QStringList operandValues(RuleComparison comparison, const QString& operand);
/** The operand that stands for these values. */
[[nodiscard]] QString operandOf(const QStringList& values);

} // namespace tw::app::timeline
