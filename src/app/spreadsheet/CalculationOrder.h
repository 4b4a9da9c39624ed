#pragma once

#include "app/spreadsheet/DependencyIndex.h"

#include <vector>

namespace tw::app::spreadsheet {

struct CalculationStep
{
    CellPosition position;
    /** The cell depends on itself, directly or by way of others. */
    bool isInCycle = false;
};

/**
 * The cells given and everything that depends on them, each once, after all of these that it reads; cells of
 * one cycle stand together in no order. Chains may be of any length.
 */
[[nodiscard]] std::vector<CalculationStep> calculationOrder(
    const DependencyIndex& dependencies, const std::vector<CellPosition>& cells);

} // namespace tw::app::spreadsheet
