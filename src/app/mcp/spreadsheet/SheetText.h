#pragma once

#include "app/spreadsheet/CellAddress.h"
#include "core/foundation/Result.h"

#include <QString>

namespace tw::app::mcp {

/** One answer shows no more cells than this. */
inline constexpr qint64 mostShownCells = 4'000;

/** The part of a grid that holds texts, from A1 on; none when there are none in the grid. */
[[nodiscard]] std::optional<spreadsheet::CellRange> usedRange(const core::spreadsheet::SheetGrid& grid);

/** "A1", or the address of the grid's last cell behind a colon: "A1:C20". */
[[nodiscard]] QString rangeText(const spreadsheet::CellRange& range);
/** Reads "A1" or "A1:C20"; none for other texts. */
[[nodiscard]] std::optional<spreadsheet::CellRange> rangeFromText(QStringView text);

/** Cells as a Markdown table with the names of columns and the numbers of rows; formulas beside their values.
 */
[[nodiscard]] QString markdownTable(
    const core::spreadsheet::SheetGrid& grid, const spreadsheet::CellRange& range);

/** Refuses the text of a cell when it is a formula that cannot be read. */
[[nodiscard]] core::Result<void> checkCellText(spreadsheet::CellPosition position, const QString& text);

} // namespace tw::app::mcp
