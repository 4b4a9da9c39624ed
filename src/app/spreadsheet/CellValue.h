#pragma once

#include <QString>

#include <optional>
#include <variant>

namespace tw::app::spreadsheet {

/** What a formula shows in place of a value that cannot be. */
enum class CellError
{
    DivisionByZero,
    UnknownName,
    BadReference,
    BadValue,
    BadNumber,
    NotAvailable,
    Circular,
};

/** "#DIV/0!", "#NAME?", ... */
[[nodiscard]] QString errorText(CellError error);
/** The error written like this, in letters of any case; none for other texts. */
[[nodiscard]] std::optional<CellError> errorFromText(QStringView text);

/** What a cell holds or a formula gives: nothing, a number (always finite), a text, a truth value or an
 * error. */
class CellValue
{
public:
    CellValue() = default;
    /** A number that is not finite becomes #NUM!. */
    CellValue(double number);
    CellValue(bool truth)
        : m_value(truth)
    {}
    CellValue(QString text)
        : m_value(std::move(text))
    {}
    CellValue(CellError error)
        : m_value(error)
    {}

    [[nodiscard]] bool isBlank() const { return std::holds_alternative<std::monostate>(m_value); }
    [[nodiscard]] bool isNumber() const { return std::holds_alternative<double>(m_value); }
    [[nodiscard]] bool isText() const { return std::holds_alternative<QString>(m_value); }
    [[nodiscard]] bool isTruth() const { return std::holds_alternative<bool>(m_value); }
    [[nodiscard]] bool isError() const { return std::holds_alternative<CellError>(m_value); }

    /** Only when it is one. */
    [[nodiscard]] double number() const { return std::get<double>(m_value); }
    [[nodiscard]] const QString& text() const { return std::get<QString>(m_value); }
    [[nodiscard]] bool truth() const { return std::get<bool>(m_value); }
    [[nodiscard]] CellError error() const { return std::get<CellError>(m_value); }

    friend bool operator==(const CellValue&, const CellValue&) = default;

private:
    std::variant<std::monostate, double, bool, QString, CellError> m_value;
};

/** The value of a cell without a formula: a number ("12.5", "12.5%"), TRUE or FALSE, else a text. */
[[nodiscard]] CellValue literalValue(const QString& text);

/** As cells show it: numbers with up to 15 digits, truth values as TRUE and FALSE, nothing as an empty text.
 */
[[nodiscard]] QString displayText(const CellValue& value);

/** A number in the C locale, also as a percentage; none for other texts. */
[[nodiscard]] std::optional<double> numberFromText(QStringView text);

// What a value is taken for where one of another kind is wanted. An error stays that error.

[[nodiscard]] CellValue asNumber(const CellValue& value);
[[nodiscard]] CellValue asText(const CellValue& value);
[[nodiscard]] CellValue asTruth(const CellValue& value);

/**
 * Below, equal or above zero. Numbers come before texts, texts before truth values; texts are compared
 * without case, and nothing counts as the empty value of the other side. Not for errors.
 */
[[nodiscard]] int compareValues(const CellValue& left, const CellValue& right);

} // namespace tw::app::spreadsheet
