#include "desktop/overview/OutlineTree.h"

#include "desktop/fields/StoryDateEdit.h"

#include <QHeaderView>
#include <QScopedValueRollback>

namespace tw::desktop::overview {

OutlineTree::OutlineTree(shell::ProjectSession& session, QWidget* parent)
    : CommittingView(session, parent)
{
    setUniformRowHeights(true);
    setAllColumnsShowFocus(false);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(true);
}

void OutlineTree::resizeEvent(QResizeEvent* event)
{
    CommittingView::resizeEvent(event);
    emit resized();
}

QModelIndex OutlineTree::besideInRow(const QModelIndex& cell, int step) const
{
    int place = header()->visualIndex(cell.column()) + step;
    while (place >= 0 && place < header()->count() &&
           header()->isSectionHidden(header()->logicalIndex(place)))
        place += step;
    return place >= 0 && place < header()->count() ? cell.siblingAtColumn(header()->logicalIndex(place))
                                                   : QModelIndex();
}

QModelIndex OutlineTree::beside(const QModelIndex& cell, int step) const
{
    if (const QModelIndex next = besideInRow(cell, step); next.isValid())
        return next;
    const QModelIndex row = step > 0 ? indexBelow(cell) : indexAbove(cell);
    const int edge = header()->logicalIndex(step > 0 ? 0 : header()->count() - 1);
    const QModelIndex end = row.siblingAtColumn(edge);
    return end.isValid() && header()->isSectionHidden(edge) ? besideInRow(end, step) : end;
}

QModelIndex OutlineTree::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex from = currentIndex();
    if (!from.isValid())
        return QTreeView::moveCursor(action, modifiers);
    const bool isForward = action == MoveNext || action == (isRightToLeft() ? MoveLeft : MoveRight);
    const int step = isForward ? 1 : -1;
    switch (action) {
    case MoveNext:
    case MovePrevious: {
        QModelIndex next = beside(from, step);
        while (m_isEditingOn && next.isValid() && !next.flags().testFlag(Qt::ItemIsEditable))
            next = beside(next, step);
        return next;
    }
    case MoveLeft:
    case MoveRight: {
        const bool isFirst = header()->visualIndex(from.column()) == 0;
        const bool opens = isForward && isFirst && model()->hasChildren(from) && !isExpanded(from);
        if (opens || (!isForward && isFirst))
            return QTreeView::moveCursor(action, modifiers);
        const QModelIndex next = besideInRow(from, step);
        return next.isValid() ? next : from;
    }
    default:
        return QTreeView::moveCursor(action, modifiers);
    }
}

bool OutlineTree::isStorable(const QWidget& editor) const
{
    const auto* const date = qobject_cast<const fields::StoryDateEdit*>(&editor);
    return !date || date->isReadable();
}

void OutlineTree::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    const QScopedValueRollback guard(m_isEditingOn, true);
    CommittingView::closeEditor(editor, hint);
}

} // namespace tw::desktop::overview
