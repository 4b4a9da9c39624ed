#pragma once

#include "app/spreadsheet/CellValues.h"
#include "app/spreadsheet/DependencyIndex.h"
#include "app/spreadsheet/Formula.h"

#include <QHash>

#include <optional>
#include <vector>

namespace tw::app::spreadsheet {

/**
 * The values of a sheet, kept right while its cells change. A change costs what depends on the changed cell;
 * chains of any length need no stack. Cells that depend on themselves show #CIRC!, formulas that cannot be
 * read #VALUE!. A value of its own: it holds no reference to the sheet. One thread at a time.
 */
class SheetCalculator
{
public:
    /** Cells outside of the grid, and of the largest sheet, count for nothing. */
    explicit SheetCalculator(const core::spreadsheet::SheetGrid& grid);

    /** Blank for empty cells and outside of the grid. */
    [[nodiscard]] const CellValue& value(CellPosition position) const { return m_values.at(position); }

    /** Changes one cell. The positions whose values are others now, in no order. */
    std::vector<CellPosition> setText(CellPosition position, const QString& text);

private:
    struct FormulaCell
    {
        CellPosition position;
        /** None when the formula cannot be read. */
        std::optional<Formula> formula;
        /** What it reads of the grid. */
        std::vector<CellRange> precedents;
    };

    [[nodiscard]] bool isInGrid(CellPosition position) const;
    void store(CellPosition position, const QString& text);
    void forget(CellPosition position);
    std::vector<CellPosition> recalculate(const std::vector<CellPosition>& seeds);
    [[nodiscard]] CellValue calculated(const FormulaCell& cell) const;

    CellValues m_values;
    DependencyIndex m_dependencies;
    QHash<quint64, FormulaCell> m_formulas;
};

} // namespace tw::app::spreadsheet
