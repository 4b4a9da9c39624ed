#include "app/timeline/RuleComparison.h"

#include "core/foundation/NameTable.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::timeline {

namespace {

constexpr std::array<core::foundation::NamedValue<RuleComparison>, 11> keys{{
    {RuleComparison::Equals, "equals"_L1},
    {RuleComparison::NotEquals, "notEquals"_L1},
    {RuleComparison::Contains, "contains"_L1},
    {RuleComparison::NotContains, "notContains"_L1},
    {RuleComparison::LessThan, "lessThan"_L1},
    {RuleComparison::LessOrEqual, "lessOrEqual"_L1},
    {RuleComparison::GreaterThan, "greaterThan"_L1},
    {RuleComparison::GreaterOrEqual, "greaterOrEqual"_L1},
    {RuleComparison::IsEmpty, "isEmpty"_L1},
    {RuleComparison::IsNonEmpty, "isNonEmpty"_L1},
    {RuleComparison::OneOf, "oneOf"_L1},
}};

constexpr std::array<const char*, keys.size()> phrases{
    QT_TRANSLATE_NOOP("Continuity", "must be"),
    QT_TRANSLATE_NOOP("Continuity", "must not be"),
    QT_TRANSLATE_NOOP("Continuity", "must contain"),
    QT_TRANSLATE_NOOP("Continuity", "must not contain"),
    QT_TRANSLATE_NOOP("Continuity", "must be less than"),
    QT_TRANSLATE_NOOP("Continuity", "must be at most"),
    QT_TRANSLATE_NOOP("Continuity", "must be greater than"),
    QT_TRANSLATE_NOOP("Continuity", "must be at least"),
    QT_TRANSLATE_NOOP("Continuity", "must be empty"),
    QT_TRANSLATE_NOOP("Continuity", "must be non-empty"),
    QT_TRANSLATE_NOOP("Continuity", "must be one of"),
};

QStringList pieces(const QString& operand)
{
    return operand.split(u'|', Qt::SkipEmptyParts);
}

std::optional<double> finiteNumber(const QString& text)
{
    bool isNumber = false;
    const double number = QLocale::c().toDouble(text.trimmed(), &isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

template <class Compare>
bool comparesAsNumbers(const std::optional<QString>& value, const QString& operand, Compare compare)
{
    const auto left = finiteNumber(value.value_or(QString()));
    const auto right = finiteNumber(operand);
    return left && right && compare(*left, *right);
}

} // namespace

QLatin1String ruleComparisonKey(RuleComparison comparison)
{
    return nameOf(keys, comparison);
}

std::optional<RuleComparison> ruleComparisonFromKey(QStringView key)
{
    return valueNamed(keys, key);
}

QString ruleComparisonPhrase(RuleComparison comparison)
{
    return QCoreApplication::translate("Continuity", phrases.at(static_cast<std::size_t>(comparison)));
}

bool takesOperand(RuleComparison comparison)
{
    return comparison != RuleComparison::IsEmpty && comparison != RuleComparison::IsNonEmpty;
}

bool ruleHolds(RuleComparison comparison, const std::optional<QString>& value, const QString& operand)
{
    const QString text = value.value_or(QString());
    switch (comparison) {
    case RuleComparison::Equals:
        return value && text == operand;
    case RuleComparison::NotEquals:
        return !value || text != operand;
    case RuleComparison::Contains:
        return text.contains(operand, Qt::CaseInsensitive);
    case RuleComparison::NotContains:
        return !text.contains(operand, Qt::CaseInsensitive);
    case RuleComparison::LessThan:
        return comparesAsNumbers(value, operand, std::less());
    case RuleComparison::LessOrEqual:
        return comparesAsNumbers(value, operand, std::less_equal());
    case RuleComparison::GreaterThan:
        return comparesAsNumbers(value, operand, std::greater());
    case RuleComparison::GreaterOrEqual:
        return comparesAsNumbers(value, operand, std::greater_equal());
    case RuleComparison::IsEmpty:
        return text.trimmed().isEmpty();
    case RuleComparison::IsNonEmpty:
        return !text.trimmed().isEmpty();
    case RuleComparison::OneOf:
        return value && pieces(operand).contains(text);
    }
    return false;
}

QString shownOperand(RuleComparison comparison, const QString& operand)
{
    return operandValues(comparison, operand).join(u", "_s);
}

QStringList operandValues(RuleComparison comparison, const QString& operand)
{
    return comparison == RuleComparison::OneOf ? pieces(operand) : QStringList{operand};
}

QString operandOf(const QStringList& values)
{
    return values.join(u'|');
}

} // namespace tw::app::timeline
