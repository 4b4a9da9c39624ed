#pragma once

#include "app/spreadsheet/Formula.h"
#include "app/spreadsheet/Function.h"

namespace tw::app::spreadsheet {

/** Works out one formula over the present values of the cells it reads. Lives as long as that takes. */
class Evaluation
{
public:
    Evaluation(const Formula& formula, const CellValues& cells)
        : m_formula(formula)
        , m_cells(cells)
    {}

    /** One value: a blank cell reads as 0, several cells as #VALUE!. */
    [[nodiscard]] CellValue result() const;

    // For calls

    [[nodiscard]] Operand operandOf(quint32 node) const { return operandOf(m_formula.node(node)); }
    [[nodiscard]] CellValue valueOf(quint32 node) const { return singleValue(operandOf(node)); }
    [[nodiscard]] bool isMissing(quint32 node) const
    {
        return m_formula.node(node).kind == NodeKind::Missing;
    }
    [[nodiscard]] const CellValues& cells() const { return m_cells; }

private:
    [[nodiscard]] Operand operandOf(const FormulaNode& node) const;
    [[nodiscard]] CellValue singleValue(const Operand& operand) const;
    [[nodiscard]] CellValue chain(const FormulaNode& node) const;

    const Formula& m_formula;
    const CellValues& m_cells;
};

} // namespace tw::app::spreadsheet
