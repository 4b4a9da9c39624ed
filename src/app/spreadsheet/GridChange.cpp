#include "app/spreadsheet/GridChange.h"

#include "app/spreadsheet/CellValue.h"
#include "app/spreadsheet/FormulaTokens.h"

#include <algorithm>

namespace tw::app::spreadsheet {

using core::spreadsheet::SheetGrid;

namespace {

/** A stretch of row or column numbers, both ends included. */
struct Numbers
{
    qint32 first = 0;
    qint32 last = 0;
};

qint32 mostOn(GridAxis axis)
{
    return axis == GridAxis::Rows ? mostRows : mostColumns;
}

qint32& numberOn(GridAxis axis, CellPosition& position)
{
    return axis == GridAxis::Rows ? position.row : position.column;
}

/** Where the stretch is after the change; none when nothing is left of it. */
std::optional<Numbers> moved(Numbers numbers, const GridChange& change)
{
    const qint64 end = qint64{change.at} + change.count;
    qint64 first = numbers.first;
    qint64 last = numbers.last;
    if (change.kind == GridChangeKind::Inserted) {
        first += first >= change.at ? change.count : 0;
        last += last >= change.at ? change.count : 0;
        if (first >= mostOn(change.axis))
            return std::nullopt;
        last = std::min<qint64>(last, mostOn(change.axis) - 1);
    } else {
        // What lies in the removed part shrinks to its border.
        first = first < change.at ? first : std::max<qint64>(first - change.count, change.at);
        last = last < change.at ? last : last < end ? change.at - 1 : last - change.count;
        if (first > last)
            return std::nullopt;
    }
    return Numbers{static_cast<qint32>(first), static_cast<qint32>(last)};
}

/** The reference, or both ends of a range, as they are written after the change. */
QString followedReference(CellReference first, std::optional<CellReference> last, const GridChange& change)
{
    qint32& firstNumber = numberOn(change.axis, first.position);
    qint32& lastNumber = last ? numberOn(change.axis, last->position) : firstNumber;
    const bool isBackward = lastNumber < firstNumber;
    const auto numbers =
        moved({std::min(firstNumber, lastNumber), std::max(firstNumber, lastNumber)}, change);
    if (!numbers)
        return errorText(CellError::BadReference);
    lastNumber = isBackward ? numbers->first : numbers->last;
    firstNumber = isBackward ? numbers->last : numbers->first;
    return last ? referenceText(first) + u':' + referenceText(*last) : referenceText(first);
}

/** The next token that is no blank, from an index on; the size when there is none. */
std::size_t nextToken(const std::vector<FormulaToken>& tokens, std::size_t from)
{
    while (from < tokens.size() && tokens[from].kind == TokenKind::Blanks)
        ++from;
    return from;
}

} // namespace

QString followedText(const QString& cellText, const GridChange& change)
{
    if (!isFormula(cellText))
        return cellText;
    const auto read = tokenize(QStringView(cellText).sliced(1));
    if (!read)
        return cellText;
    const std::vector<FormulaToken>& tokens = read.value();
    QString text = QStringLiteral("=");
    for (std::size_t index = 0; index < tokens.size(); ++index) {
        if (tokens[index].kind != TokenKind::Reference) {
            text += tokens[index].text;
            continue;
        }
        const std::size_t colon = nextToken(tokens, index + 1);
        const std::size_t last = colon < tokens.size() && tokens[colon].isOperator(u":")
                                     ? nextToken(tokens, colon + 1)
                                     : tokens.size();
        const bool isRange = last < tokens.size() && tokens[last].kind == TokenKind::Reference;
        text += followedReference(
            tokens[index].reference, isRange ? std::optional(tokens[last].reference) : std::nullopt, change);
        if (isRange)
            index = last;
    }
    return text;
}

SheetGrid changedGrid(const SheetGrid& grid, const GridChange& wanted)
{
    GridChange change = wanted;
    SheetGrid result = grid;
    qint32& size = change.axis == GridAxis::Rows ? result.rowCount : result.columnCount;
    change.at = std::clamp(change.at, 0, std::max(size, 0));
    const qint32 room = change.kind == GridChangeKind::Inserted ? mostOn(change.axis) - size
                                                                : std::min(size - change.at, size - 1);
    change.count = std::clamp(change.count, 0, std::max(room, 0));
    size += change.kind == GridChangeKind::Inserted ? change.count : -change.count;

    result.cells.clear();
    for (const auto& [position, cell] : grid.cells) {
        CellPosition target = position;
        qint32& number = numberOn(change.axis, target);
        const auto numbers = moved({number, number}, change);
        if (!numbers)
            continue;
        number = numbers->first;
        core::spreadsheet::Cell copy = cell;
        copy.text = followedText(cell.text, change);
        result.cells.emplace(target, std::move(copy));
    }
    return result;
}

} // namespace tw::app::spreadsheet
