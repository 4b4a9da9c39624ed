#pragma once

#include "app/spreadsheet/CellAddress.h"
#include "core/foundation/Result.h"

#include <QStringView>

#include <vector>

namespace tw::app::spreadsheet {

/** Longer formulas are refused. */
inline constexpr qsizetype mostFormulaCharacters = 8192;

enum class TokenKind
{
    Number,
    /** With its quotes. */
    Text,
    Reference,
    /** A function, a truth value, or something unknown. */
    Name,
    /** "#REF!" and its like. */
    Error,
    Operator,
    OpenParenthesis,
    CloseParenthesis,
    /** Between arguments: a comma or a semicolon. */
    Separator,
    Blanks,
};

/** A piece of a formula; all pieces in a row are the formula. */
struct FormulaToken
{
    TokenKind kind = TokenKind::Blanks;
    QStringView text;
    /** For Reference. */
    CellReference reference;

    [[nodiscard]] bool isOperator(QStringView sign) const
    {
        return kind == TokenKind::Operator && text == sign;
    }
};

/** The text begins with a formula's "=". */
[[nodiscard]] bool isFormula(QStringView cellText);

/**
 * Takes apart what follows the "=". The views point into the text given. Fails, with a message for the user,
 * at the first character that can begin nothing, an unclosed quote, and when the formula is too long.
 */
[[nodiscard]] core::Result<std::vector<FormulaToken>> tokenize(QStringView formula);

} // namespace tw::app::spreadsheet
