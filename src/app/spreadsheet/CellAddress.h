#pragma once

#include "core/spreadsheet/Spreadsheet.h"

#include <QString>

#include <optional>

namespace tw::app::spreadsheet {

using core::spreadsheet::CellPosition;

/** The largest sheet that an address can speak of. */
inline constexpr qint32 mostRows = 1'048'576;
inline constexpr qint32 mostColumns = 16'384;

/** A rectangle of cells, both corners included. */
struct CellRange
{
    CellPosition first;
    CellPosition last;

    [[nodiscard]] qint64 rowCount() const { return qint64{last.row} - first.row + 1; }
    [[nodiscard]] qint64 columnCount() const { return qint64{last.column} - first.column + 1; }
    [[nodiscard]] qint64 cellCount() const { return rowCount() * columnCount(); }
    [[nodiscard]] bool isSingleCell() const { return first == last; }
    [[nodiscard]] bool contains(CellPosition position) const
    {
        return position.row >= first.row && position.row <= last.row && position.column >= first.column &&
               position.column <= last.column;
    }

    friend bool operator==(const CellRange&, const CellRange&) = default;
};

/** A cell as a formula writes it. */
struct CellReference
{
    CellPosition position;
    bool isRowFixed = false;
    bool isColumnFixed = false;

    friend bool operator==(const CellReference&, const CellReference&) = default;
};

/** "A", "Z", "AA" for 0, 25, 26. */
[[nodiscard]] QString columnName(qint32 column);
/** "A1" */
[[nodiscard]] QString addressText(CellPosition position);
/** "$A$1" with the signs that the reference has. */
[[nodiscard]] QString referenceText(const CellReference& reference);

/** Reads "A1", "$A$1", in letters of any case; none for other texts and beyond the largest sheet. */
[[nodiscard]] std::optional<CellReference> referenceFromText(QStringView text);

} // namespace tw::app::spreadsheet
