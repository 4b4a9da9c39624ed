#include "app/spreadsheet/CellValues.h"

#include <algorithm>

namespace tw::app::spreadsheet {

const CellValue& CellValues::at(CellPosition position) const
{
    static const CellValue blank;
    const auto entry = m_values.find(position);
    return entry == m_values.end() ? blank : entry->second;
}

void CellValues::set(CellPosition position, CellValue value)
{
    if (value.isBlank())
        m_values.erase(position);
    else
        m_values.insert_or_assign(position, std::move(value));
}

std::optional<CellRange> CellValues::inGrid(const CellRange& range) const
{
    CellRange clipped = range;
    clipped.last.row = std::min(range.last.row, m_rowCount - 1);
    clipped.last.column = std::min(range.last.column, m_columnCount - 1);
    if (clipped.last.row < clipped.first.row || clipped.last.column < clipped.first.column)
        return std::nullopt;
    return clipped;
}

} // namespace tw::app::spreadsheet
