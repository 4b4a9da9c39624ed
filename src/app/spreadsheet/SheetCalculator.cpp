#include "app/spreadsheet/SheetCalculator.h"

#include "app/spreadsheet/CalculationOrder.h"
#include "app/spreadsheet/Evaluation.h"
#include "app/spreadsheet/FormulaTokens.h"

#include <algorithm>

namespace tw::app::spreadsheet {

SheetCalculator::SheetCalculator(const core::spreadsheet::SheetGrid& grid)
    : m_values(std::min(grid.rowCount, mostRows), std::min(grid.columnCount, mostColumns))
{
    std::vector<CellPosition> seeds;
    for (const auto& [position, cell] : grid.cells) {
        if (!isInGrid(position))
            continue;
        store(position, cell.text);
        if (m_formulas.contains(keyOf(position)))
            seeds.push_back(position);
    }
    recalculate(seeds);
}

std::vector<CellPosition> SheetCalculator::setText(CellPosition position, const QString& text)
{
    if (!isInGrid(position))
        return {};
    const CellValue before = m_values.at(position);
    forget(position);
    store(position, text);
    std::vector<CellPosition> changed = recalculate({position});
    // A recalculation compares formulas alone with what they were a moment ago.
    std::erase(changed, position);
    if (!(m_values.at(position) == before))
        changed.push_back(position);
    return changed;
}

bool SheetCalculator::isInGrid(CellPosition position) const
{
    return position.row >= 0 && position.column >= 0 && m_values.inGrid({position, position});
}

void SheetCalculator::store(CellPosition position, const QString& text)
{
    if (!isFormula(text)) {
        m_values.set(position, literalValue(text));
        return;
    }
    FormulaCell cell;
    cell.position = position;
    if (auto formula = Formula::parse(QStringView(text).sliced(1))) {
        for (const CellRange& range : formula.value().precedents()) {
            if (const auto inGrid = m_values.inGrid(range))
                cell.precedents.push_back(*inGrid);
        }
        cell.formula = std::move(formula).value();
    }
    m_dependencies.add(position, cell.precedents);
    m_formulas.insert(keyOf(position), std::move(cell));
}

void SheetCalculator::forget(CellPosition position)
{
    m_values.set(position, {});
    const auto cell = m_formulas.constFind(keyOf(position));
    if (cell == m_formulas.cend())
        return;
    m_dependencies.remove(position, cell->precedents);
    m_formulas.erase(cell);
}

std::vector<CellPosition> SheetCalculator::recalculate(const std::vector<CellPosition>& seeds)
{
    std::vector<CellPosition> changed;
    for (const CalculationStep& step : calculationOrder(m_dependencies, seeds)) {
        const auto cell = m_formulas.constFind(keyOf(step.position));
        if (cell == m_formulas.cend())
            continue;
        CellValue value = step.isInCycle ? CellValue(CellError::Circular) : calculated(*cell);
        if (value == m_values.at(step.position))
            continue;
        m_values.set(step.position, std::move(value));
        changed.push_back(step.position);
    }
    return changed;
}

CellValue SheetCalculator::calculated(const FormulaCell& cell) const
{
    return cell.formula ? Evaluation(*cell.formula, m_values).result() : CellValue(CellError::BadValue);
}

} // namespace tw::app::spreadsheet
