#pragma once

#include "desktop/trees/CommittingView.h"

#include <QTreeView>

namespace tw::desktop::overview {

/**
 * A tree whose rows are selected whole while its cells are edited one by one: Tab and the arrow keys go from
 * cell to cell in the order they are seen. In the first column the arrow keys open and close rows as ever.
 * Behind the last cell Tab leaves the tree; while a cell is edited it goes on to the next that can be.
 */
class OutlineTree final : public trees::CommittingView<QTreeView>
{
    Q_OBJECT

public:
    OutlineTree(shell::ProjectSession& session, QWidget* parent);

signals:
    void resized();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool isStorable(const QWidget& editor) const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    /** The cell before (-1) or behind (1) it in its row; invalid at the end. */
    [[nodiscard]] QModelIndex besideInRow(const QModelIndex& cell, int step) const;
    /** The same, going on in the rows above and below. */
    [[nodiscard]] QModelIndex beside(const QModelIndex& cell, int step) const;

    bool m_isEditingOn = false;
};

} // namespace tw::desktop::overview
