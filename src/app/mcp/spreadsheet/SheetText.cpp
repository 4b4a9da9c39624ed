#include "app/mcp/spreadsheet/SheetText.h"

#include "app/spreadsheet/FormulaTokens.h"
#include "app/spreadsheet/SheetCalculator.h"

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::spreadsheet::SheetGrid;
using spreadsheet::CellPosition;
using spreadsheet::CellRange;
using spreadsheet::SheetCalculator;

namespace {

/** A text that cannot end a cell of the table early. */
QString escaped(const QString& text)
{
    return text.simplified().replace(u'|', u"\\|"_s);
}

QString shownCell(const SheetGrid& grid, const SheetCalculator& sheet, CellPosition position)
{
    const auto cell = grid.cells.find(position);
    if (cell == grid.cells.end())
        return {};
    const QString value = displayText(sheet.value(position));
    return spreadsheet::isFormula(cell->second.text) ? u"%1 → %2"_s.arg(cell->second.text, value) : value;
}

QString tableRow(const QStringList& cells)
{
    return u"| "_s + cells.join(u" | "_s) + u" |"_s;
}

} // namespace

std::optional<CellRange> usedRange(const SheetGrid& grid)
{
    CellPosition last{-1, -1};
    for (const auto& [position, cell] : grid.cells) {
        if (cell.text.isEmpty() || position.row < 0 || position.column < 0 || position.row >= grid.rowCount ||
            position.column >= grid.columnCount)
            continue;
        last.row = std::max(last.row, position.row);
        last.column = std::max(last.column, position.column);
    }
    return last.row < 0 ? std::nullopt : std::optional(CellRange{{0, 0}, last});
}

QString rangeText(const CellRange& range)
{
    const QString first = spreadsheet::addressText(range.first);
    return range.isSingleCell() ? first : first + u':' + spreadsheet::addressText(range.last);
}

std::optional<CellRange> rangeFromText(QStringView text)
{
    const qsizetype colon = text.indexOf(u':');
    const auto first = spreadsheet::referenceFromText((colon < 0 ? text : text.first(colon)).trimmed());
    const auto last = colon < 0 ? first : spreadsheet::referenceFromText(text.sliced(colon + 1).trimmed());
    if (!first || !last)
        return std::nullopt;
    const CellPosition one = first->position;
    const CellPosition other = last->position;
    return CellRange{
        {std::min(one.row, other.row), std::min(one.column, other.column)},
        {std::max(one.row, other.row), std::max(one.column, other.column)}};
}

QString markdownTable(const SheetGrid& grid, const CellRange& range)
{
    const SheetCalculator sheet(grid);
    QStringList heading{QString()};
    QStringList rule{u"---"_s};
    for (qint32 column = range.first.column; column <= range.last.column; ++column) {
        heading += spreadsheet::columnName(column);
        rule += u"---"_s;
    }
    QStringList lines{tableRow(heading), tableRow(rule)};
    for (qint32 row = range.first.row; row <= range.last.row; ++row) {
        QStringList cells{QString::number(row + 1)};
        for (qint32 column = range.first.column; column <= range.last.column; ++column)
            cells += escaped(shownCell(grid, sheet, {row, column}));
        lines += tableRow(cells);
    }
    return lines.join(u'\n');
}

core::Result<void> checkCellText(CellPosition position, const QString& text)
{
    if (!spreadsheet::isFormula(text))
        return {};
    if (const auto formula = spreadsheet::Formula::parse(QStringView(text).sliced(1)); !formula)
        return core::Failure{u"The formula '%1' for %2 cannot be read: %3"_s.arg(
            text, spreadsheet::addressText(position), formula.message())};
    return {};
}

} // namespace tw::app::mcp
