#include "app/spreadsheet/CellValue.h"

#include "core/foundation/NameTable.h"

#include <QLocale>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::spreadsheet {

namespace {

constexpr int shownDigits = 15;

constexpr std::array<core::foundation::NamedValue<CellError>, 7> errorTexts{{
    {CellError::DivisionByZero, "#DIV/0!"_L1},
    {CellError::UnknownName, "#NAME?"_L1},
    {CellError::BadReference, "#REF!"_L1},
    {CellError::BadValue, "#VALUE!"_L1},
    {CellError::BadNumber, "#NUM!"_L1},
    {CellError::NotAvailable, "#N/A"_L1},
    {CellError::Circular, "#CIRC!"_L1},
}};

std::optional<bool> truthFromText(QStringView text)
{
    if (text.compare("TRUE"_L1, Qt::CaseInsensitive) == 0)
        return true;
    if (text.compare("FALSE"_L1, Qt::CaseInsensitive) == 0)
        return false;
    return std::nullopt;
}

/** The order of kinds in a comparison. */
int rankOf(const CellValue& value)
{
    if (value.isText())
        return 1;
    return value.isTruth() ? 2 : 0;
}

/** What nothing counts as beside another value. */
CellValue blankBeside(const CellValue& other)
{
    if (other.isText())
        return QString();
    return other.isTruth() ? CellValue(false) : CellValue(0.0);
}

} // namespace

QString errorText(CellError error)
{
    return nameOf(errorTexts, error);
}

std::optional<CellError> errorFromText(QStringView text)
{
    return valueNamed(errorTexts, text.toString().toUpper());
}

CellValue::CellValue(double number)
{
    if (std::isfinite(number))
        m_value = number;
    else
        m_value = CellError::BadNumber;
}

CellValue literalValue(const QString& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return text.isEmpty() ? CellValue() : CellValue(text);
    if (const auto truth = truthFromText(trimmed))
        return *truth;
    if (const auto number = numberFromText(trimmed))
        return *number;
    return text;
}

QString displayText(const CellValue& value)
{
    if (value.isNumber()) {
        // Zero has no sign here.
        const double number = value.number() == 0 ? 0 : value.number();
        return QString::number(number, 'g', shownDigits).replace(u'e', u'E');
    }
    if (value.isText())
        return value.text();
    if (value.isTruth())
        return value.truth() ? u"TRUE"_s : u"FALSE"_s;
    return value.isError() ? errorText(value.error()) : QString();
}

std::optional<double> numberFromText(QStringView text)
{
    QStringView digits = text.trimmed();
    const bool isPercentage = digits.endsWith(u'%');
    if (isPercentage)
        digits = digits.chopped(1).trimmed();
    // The reader of numbers would also take "inf" and "nan".
    const QChar last = digits.isEmpty() ? QChar() : digits.back();
    if (!(last >= u'0' && last <= u'9') && last != u'.')
        return std::nullopt;
    bool isNumber = false;
    const double number = QLocale::c().toDouble(digits, &isNumber);
    if (!isNumber || !std::isfinite(number))
        return std::nullopt;
    return isPercentage ? number / 100 : number;
}

CellValue asNumber(const CellValue& value)
{
    if (value.isNumber() || value.isError())
        return value;
    if (value.isTruth())
        return value.truth() ? 1.0 : 0.0;
    if (value.isBlank())
        return 0.0;
    const auto number = numberFromText(value.text());
    return number ? CellValue(*number) : CellValue(CellError::BadValue);
}

CellValue asText(const CellValue& value)
{
    return value.isError() ? value : CellValue(displayText(value));
}

CellValue asTruth(const CellValue& value)
{
    if (value.isTruth() || value.isError())
        return value;
    if (value.isBlank())
        return false;
    if (value.isNumber())
        return value.number() != 0;
    if (const auto truth = truthFromText(value.text()))
        return *truth;
    return CellError::BadValue;
}

int compareValues(const CellValue& left, const CellValue& right)
{
    if (left.isBlank() || right.isBlank()) {
        if (left.isBlank() && right.isBlank())
            return 0;
        return left.isBlank() ? compareValues(blankBeside(right), right)
                              : compareValues(left, blankBeside(left));
    }
    if (rankOf(left) != rankOf(right))
        return rankOf(left) - rankOf(right);
    if (left.isText())
        return left.text().compare(right.text(), Qt::CaseInsensitive);
    if (left.isTruth())
        return int{left.truth()} - int{right.truth()};
    if (left.number() == right.number())
        return 0;
    return left.number() < right.number() ? -1 : 1;
}

} // namespace tw::app::spreadsheet
