#include "app/spreadsheet/Criterion.h"
#include "app/spreadsheet/FunctionArguments.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::spreadsheet {

namespace {

/** How a value is looked for in a row or a column. */
enum class MatchMode
{
    Exact,
    /** The last value that is not larger; the values ascend. */
    Ascending,
    /** The last value that is not smaller; the values descend. */
    Descending,
};

bool isSameKind(const CellValue& one, const CellValue& other)
{
    return one.isNumber() == other.isNumber() && one.isText() == other.isText() &&
           one.isTruth() == other.isTruth();
}

/** Exact means without case, and a text may be a pattern. */
bool isMatch(const CellValue& candidate, const CellValue& wanted)
{
    if (!isSameKind(candidate, wanted))
        return false;
    return wanted.isText() ? matchesPattern(candidate.text(), wanted.text()) : candidate == wanted;
}

/** The position in a row or column, none when there is no match. Blank cells match nothing. */
std::optional<CellPosition> findIn(
    const CellValues& cells, const CellRange& line, const CellValue& wanted, MatchMode mode)
{
    std::optional<CellPosition> found;
    cells.visit(line, [&](CellPosition position, const CellValue& candidate) {
        if (mode == MatchMode::Exact) {
            if (isMatch(candidate, wanted))
                found = position;
            return !found;
        }
        if (!isSameKind(candidate, wanted))
            return true;
        const int order = compareValues(candidate, wanted);
        if (mode == MatchMode::Ascending ? order > 0 : order < 0)
            return false;
        found = position;
        return true;
    });
    return found;
}

MatchMode lookupMode(std::optional<bool> isApproximate)
{
    return isApproximate.value_or(true) ? MatchMode::Ascending : MatchMode::Exact;
}

/** A position within a range that is given as a number from 1; none outside of it. */
std::optional<qint32> offsetOf(double number, qint64 count)
{
    if (!(number >= 1) || number >= static_cast<double>(count) + 1)
        return std::nullopt;
    return static_cast<qint32>(number) - 1;
}

Operand lookUpInColumns(
    const CellValues& cells, const CellValue& wanted, const CellRange& table, double number,
    std::optional<bool> isApproximate)
{
    const auto column = offsetOf(number, table.columnCount());
    if (!column)
        return CellValue(number < 1 ? CellError::BadValue : CellError::BadReference);
    const CellRange first{table.first, {table.last.row, table.first.column}};
    const auto found = findIn(cells, first, wanted, lookupMode(isApproximate));
    if (!found)
        return CellValue(CellError::NotAvailable);
    return cells.at({found->row, table.first.column + *column});
}

Operand lookUpInRows(
    const CellValues& cells, const CellValue& wanted, const CellRange& table, double number,
    std::optional<bool> isApproximate)
{
    const auto row = offsetOf(number, table.rowCount());
    if (!row)
        return CellValue(number < 1 ? CellError::BadValue : CellError::BadReference);
    const CellRange first{table.first, {table.first.row, table.last.column}};
    const auto found = findIn(cells, first, wanted, lookupMode(isApproximate));
    if (!found)
        return CellValue(CellError::NotAvailable);
    return cells.at({table.first.row + *row, found->column});
}

/** The place of a value in a row or a column, from 1. */
Operand match(
    const CellValues& cells, const CellValue& wanted, const CellRange& line, std::optional<double> kind)
{
    if (line.rowCount() > 1 && line.columnCount() > 1)
        return CellValue(CellError::NotAvailable);
    const double sign = kind.value_or(1);
    const MatchMode mode = sign == 0  ? MatchMode::Exact
                           : sign > 0 ? MatchMode::Ascending
                                      : MatchMode::Descending;
    const auto found = findIn(cells, line, wanted, mode);
    if (!found)
        return CellValue(CellError::NotAvailable);
    return CellValue(
        static_cast<double>(found->row - line.first.row + found->column - line.first.column + 1));
}

/** A cell of a table; 0 stands for the whole row or column. */
Operand index(
    const CellValues& /*cells*/, const CellRange& table, double row, std::optional<double> columnGiven)
{
    // In a single row the one number is the column.
    const bool isRowOnly = !columnGiven && table.rowCount() == 1;
    const double rowNumber = isRowOnly ? 1 : row;
    const double column = isRowOnly ? row : columnGiven.value_or(table.columnCount() == 1 ? 1 : 0);
    CellRange part = table;
    if (rowNumber != 0) {
        const auto offset = offsetOf(rowNumber, table.rowCount());
        if (!offset)
            return CellValue(CellError::BadReference);
        part.first.row = part.last.row = table.first.row + *offset;
    }
    if (column != 0) {
        const auto offset = offsetOf(column, table.columnCount());
        if (!offset)
            return CellValue(CellError::BadReference);
        part.first.column = part.last.column = table.first.column + *offset;
    }
    return part;
}

Operand pick(const Call& call)
{
    const auto number = readNumber(call.value(0));
    if (const auto* error = std::get_if<CellError>(&number))
        return CellValue(*error);
    const auto offset = offsetOf(std::get<double>(number), call.argumentCount() - 1);
    return offset ? call.operand(*offset + 1) : CellValue(CellError::BadValue);
}

CellValue rowsOf(const CellRange& range)
{
    return static_cast<double>(range.rowCount());
}

CellValue columnsOf(const CellRange& range)
{
    return static_cast<double>(range.columnCount());
}

constexpr std::array functions{
    Function{"CHOOSE"_L1, 2, anyNumberOfArguments, &pick},
    function<&columnsOf>("COLUMNS"_L1),
    function<&lookUpInRows>("HLOOKUP"_L1),
    function<&index>("INDEX"_L1),
    function<&match>("MATCH"_L1),
    function<&rowsOf>("ROWS"_L1),
    function<&lookUpInColumns>("VLOOKUP"_L1),
};

} // namespace

std::span<const Function> lookupFunctions()
{
    return functions;
}

} // namespace tw::app::spreadsheet
