#pragma once

#include <QAbstractItemModel>

#include <vector>

namespace tw::desktop::trees {

/**
 * The rows below `root` that a tree shows open, parents before their children. Not without end: views lay
 * open rows out by recursion, and a damaged project may be as deep as it is long. The rest opens by hand.
 */
[[nodiscard]] std::vector<QModelIndex> rowsToOpen(
    const QAbstractItemModel& model, const QModelIndex& root = {});

} // namespace tw::desktop::trees
