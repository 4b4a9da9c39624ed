#include "app/spreadsheet/DependencyIndex.h"

#include <bit>

namespace tw::app::spreadsheet {

namespace {

/** The places from number * 2^level on, 2^level of them. */
struct Stretch
{
    int level = 0;
    quint32 number = 0;
};

/** The fewest stretches that together are first..last. */
std::vector<Stretch> stretchesOf(qint32 first, qint32 last)
{
    std::vector<Stretch> stretches;
    auto next = static_cast<quint32>(first);
    const quint32 end = static_cast<quint32>(last) + 1;
    while (next < end) {
        const int aligned = next == 0 ? 31 : std::countr_zero(next);
        const int level = std::min(aligned, static_cast<int>(std::bit_width(end - next)) - 1);
        stretches.push_back({level, next >> level});
        next += quint32{1} << level;
    }
    return stretches;
}

/** Sides of a block: 5 bits a level. */
quint64 shapeOf(int rowLevel, int columnLevel)
{
    return static_cast<quint64>(rowLevel) << 5 | static_cast<quint64>(columnLevel);
}

quint64 blockOf(const Stretch& rows, const Stretch& columns)
{
    constexpr int numberBits = 21;
    return (shapeOf(rows.level, columns.level) << numberBits | rows.number) << numberBits | columns.number;
}

/** The blocks of all rectangles, with their shapes. */
template <class Visit>
void visitBlocks(std::span<const CellRange> ranges, Visit visit)
{
    for (const CellRange& range : ranges) {
        const auto columns = stretchesOf(range.first.column, range.last.column);
        for (const Stretch& row : stretchesOf(range.first.row, range.last.row)) {
            for (const Stretch& column : columns)
                visit(blockOf(row, column), shapeOf(row.level, column.level));
        }
    }
}

} // namespace

void DependencyIndex::add(CellPosition formula, std::span<const CellRange> precedents)
{
    visitBlocks(precedents, [this, formula](quint64 block, quint64 shape) {
        m_readers[block].push_back(formula);
        ++m_shapes[shape];
    });
}

void DependencyIndex::remove(CellPosition formula, std::span<const CellRange> precedents)
{
    visitBlocks(precedents, [this, formula](quint64 block, quint64 shape) {
        const auto readers = m_readers.find(block);
        readers->erase(std::ranges::find(*readers, formula));
        if (readers->empty())
            m_readers.erase(readers);
        if (--m_shapes[shape] == 0)
            m_shapes.remove(shape);
    });
}

std::vector<CellPosition> DependencyIndex::dependentsOf(CellPosition position) const
{
    std::vector<CellPosition> dependents;
    for (auto shape = m_shapes.keyBegin(); shape != m_shapes.keyEnd(); ++shape) {
        const auto rowLevel = static_cast<int>(*shape >> 5);
        const auto columnLevel = static_cast<int>(*shape & 31);
        const auto readers = m_readers.constFind(blockOf(
            {rowLevel, static_cast<quint32>(position.row) >> rowLevel},
            {columnLevel, static_cast<quint32>(position.column) >> columnLevel}));
        if (readers != m_readers.cend())
            dependents.insert(dependents.end(), readers->begin(), readers->end());
    }
    return dependents;
}

} // namespace tw::app::spreadsheet
