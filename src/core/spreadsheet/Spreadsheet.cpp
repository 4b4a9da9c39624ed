#include "core/spreadsheet/Spreadsheet.h"

namespace tw::core::spreadsheet {

namespace {

void dropTrailingZeros(std::vector<qint32>& sizes)
{
    while (!sizes.empty() && sizes.back() == 0)
        sizes.pop_back();
}

} // namespace

Spreadsheet::Spreadsheet(ContentId id, QString title)
    : ContentObject(id, staticKind)
    , m_title(std::move(title))
{}

Spreadsheet::~Spreadsheet() = default;

void Spreadsheet::setGrid(SheetGrid grid)
{
    std::erase_if(grid.cells, [](const auto& entry) { return entry.second.isEmpty(); });
    m_grid = std::move(grid);
}

Cell Spreadsheet::cell(CellPosition position) const
{
    const auto entry = m_grid.cells.find(position);
    return entry == m_grid.cells.end() ? Cell() : entry->second;
}

void Spreadsheet::setCell(CellPosition position, Cell cell)
{
    if (cell.isEmpty())
        m_grid.cells.erase(position);
    else
        m_grid.cells.insert_or_assign(position, std::move(cell));
}

void Spreadsheet::setSizes(SheetSizes sizes)
{
    dropTrailingZeros(sizes.columnWidths);
    dropTrailingZeros(sizes.rowHeights);
    m_sizes = std::move(sizes);
}

bool operator==(const Spreadsheet& left, const Spreadsheet& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_title == right.m_title && left.m_grid == right.m_grid && left.m_sizes == right.m_sizes &&
           left.m_linkedCategoryId == right.m_linkedCategoryId;
}

} // namespace tw::core::spreadsheet
