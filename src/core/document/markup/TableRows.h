// The rows of pipe tables: shared by the reader and the writer of blocks.
#pragma once

#include "core/document/markup/Blocks.h"

namespace tw::core::document::markup {

/** Whether the line has a pipe that parts cells. */
[[nodiscard]] bool hasCellBorder(QStringView line);

/** The cells of a row, trimmed, with "\|" read as "|". At least one. */
[[nodiscard]] std::vector<QString> readCells(QStringView line);

/** The cells of a row as they stand in it: "\|" is not read. */
[[nodiscard]] std::vector<QStringView> cellsAsWritten(QStringView line);

/** How many cells readCells() gives. */
[[nodiscard]] qsizetype countCells(QStringView line);

[[nodiscard]] std::vector<ColumnAlignment> readAlignments(QStringView separator);

[[nodiscard]] QString writeTable(const Table& table);

} // namespace tw::core::document::markup
