#pragma once

#include "app/spreadsheet/CellAddress.h"

namespace tw::app::spreadsheet {

enum class GridAxis
{
    Rows,
    Columns,
};

enum class GridChangeKind
{
    Inserted,
    Removed,
};

/** Rows or columns that come or go: `count` of them, from the number `at` (zero-based) on. */
struct GridChange
{
    GridAxis axis = GridAxis::Rows;
    GridChangeKind kind = GridChangeKind::Inserted;
    qint32 at = 0;
    qint32 count = 1;
};

/**
 * A cell's text with its references following the change: "$" stays where it is, ranges grow and shrink with
 * what lies in them, and what refers to nothing any more becomes #REF!. Everything else stays letter by
 * letter; texts that are no formula, or none that can be read, stay as they are.
 */
[[nodiscard]] QString followedText(const QString& cellText, const GridChange& change);

/**
 * The grid after the change: cells move, removed ones are gone, formulas follow. Counts that reach beyond the
 * grid are cut; a grid keeps one row and one column, and grows to the largest sheet at most.
 */
[[nodiscard]] core::spreadsheet::SheetGrid changedGrid(
    const core::spreadsheet::SheetGrid& grid, const GridChange& change);

} // namespace tw::app::spreadsheet
