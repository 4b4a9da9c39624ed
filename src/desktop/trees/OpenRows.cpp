#include "desktop/trees/OpenRows.h"

namespace tw::desktop::trees {

namespace {

constexpr int deepestOpen = 256;

} // namespace

std::vector<QModelIndex> rowsToOpen(const QAbstractItemModel& model, const QModelIndex& root)
{
    std::vector<QModelIndex> rows;
    // Level by level: those below the rows of one level are added behind them.
    const auto addChildren = [&](const QModelIndex& parent) {
        // Asked first, because a filter remembers every row whose children were counted.
        if (!model.hasChildren(parent))
            return;
        for (int row = 0; row < model.rowCount(parent); ++row)
            rows.push_back(model.index(row, 0, parent));
    };
    addChildren(root);
    std::size_t next = 0;
    for (int depth = 1; depth < deepestOpen && next < rows.size(); ++depth) {
        for (const std::size_t end = rows.size(); next < end; ++next)
            addChildren(QModelIndex(rows[next]));
    }
    return rows;
}

} // namespace tw::desktop::trees
