#pragma once

#include "app/spreadsheet/CellValue.h"

namespace tw::app::spreadsheet {

/** Longer patterns match nothing. */
inline constexpr qsizetype mostPatternCharacters = 255;

/**
 * Whether a text matches a pattern as a whole, without case: "*" for any characters, "?" for one, "~" before
 * either takes it literally. The time is at most the product of both lengths, here and below.
 */
[[nodiscard]] bool matchesPattern(QStringView text, QStringView pattern);

/** Where a pattern first matches within a text from `from` on; -1 for nowhere. */
[[nodiscard]] qsizetype findPattern(QStringView text, QStringView pattern, qsizetype from);

/** The condition of COUNTIF and its like: a value, or a text such as ">5", "<>x", "Har*". */
class Criterion
{
public:
    explicit Criterion(const CellValue& condition);

    [[nodiscard]] bool holds(const CellValue& value) const;

private:
    enum class Sign
    {
        Equal,
        NotEqual,
        Less,
        LessOrEqual,
        Greater,
        GreaterOrEqual,
    };

    [[nodiscard]] bool isEqual(const CellValue& value) const;

    Sign m_sign = Sign::Equal;
    CellValue m_operand;
};

} // namespace tw::app::spreadsheet
