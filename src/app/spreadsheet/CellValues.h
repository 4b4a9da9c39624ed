#pragma once

#include "app/spreadsheet/CellAddress.h"
#include "app/spreadsheet/CellValue.h"

#include <map>
#include <optional>

namespace tw::app::spreadsheet {

/** What the cells of a sheet hold at present. Walks cost what is there, not the size of the rectangle. */
class CellValues
{
public:
    CellValues(qint32 rowCount, qint32 columnCount)
        : m_rowCount(rowCount)
        , m_columnCount(columnCount)
    {}

    /** A blank one where there is nothing. */
    [[nodiscard]] const CellValue& at(CellPosition position) const;
    /** A blank value takes away what was there. */
    void set(CellPosition position, CellValue value);

    /** The part of a rectangle that lies in the grid; none when nothing does. */
    [[nodiscard]] std::optional<CellRange> inGrid(const CellRange& range) const;

    /** Calls visit(position, value) for what is not blank, row by row, until it gives false. */
    template <class Visit>
    void visit(const CellRange& range, Visit visit) const
    {
        auto entry = m_values.lower_bound(range.first);
        while (entry != m_values.end() && entry->first.row <= range.last.row) {
            const CellPosition position = entry->first;
            if (position.column < range.first.column)
                entry = m_values.lower_bound({position.row, range.first.column});
            else if (position.column > range.last.column)
                entry = m_values.lower_bound({position.row + 1, range.first.column});
            else if (!visit(position, entry->second))
                return;
            else
                ++entry;
        }
    }

private:
    qint32 m_rowCount;
    qint32 m_columnCount;
    std::map<CellPosition, CellValue> m_values;
};

} // namespace tw::app::spreadsheet
