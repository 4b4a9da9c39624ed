#pragma once

#include "app/spreadsheet/CellAddress.h"

#include <QHash>

#include <algorithm>
#include <span>
#include <vector>

namespace tw::app::spreadsheet {

/** A number of its own for each position that an address can have. */
[[nodiscard]] inline quint64 keyOf(CellPosition position)
{
    return quint64{static_cast<quint32>(position.row)} << 32 | static_cast<quint32>(position.column);
}

/**
 * Which formulas read a cell. A rectangle is kept as few blocks whose sides are powers of two, so that the
 * formulas of one cell are found by looking at the blocks around it, however many and large the rectangles.
 */
class DependencyIndex
{
public:
    void add(CellPosition formula, std::span<const CellRange> precedents);
    /** The same precedents as at add(). */
    void remove(CellPosition formula, std::span<const CellRange> precedents);

    /** Formulas that read the cell, one as often as it reads it. */
    [[nodiscard]] std::vector<CellPosition> dependentsOf(CellPosition position) const;

private:
    using FormulaList = std::vector<CellPosition>;

    QHash<quint64, FormulaList> m_readers;
    /** How many blocks there are of each shape. */
    QHash<quint64, qsizetype> m_shapes;
};

} // namespace tw::app::spreadsheet
