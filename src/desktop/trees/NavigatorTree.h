#pragma once

#include "desktop/shell/DeskContext.h"
#include "desktop/trees/CommittingView.h"
#include "desktop/trees/WithholdingFilter.h"

#include <QSet>
#include <QTreeView>

#include <functional>

class QLabel;

namespace tw::desktop::trees {

/**
 * The tree of a navigator panel over any model that gives TreeRole::IdRole: filter as you type, rows that
 * stay open and selected by id when the model is built anew, a drop line, renaming in place, and a hint in
 * the middle while there is nothing to show.
 */
class NavigatorTree final : public CommittingView<QTreeView>
{
    Q_OBJECT

public:
    NavigatorTree(const shell::DeskContext& desk, QWidget* parent);

    /** The model stays the caller's and must outlive the tree. Replaces setModel(). */
    void setSource(QAbstractItemModel& source);
    /** Rows that contain the text, with the rows above them. Dragging rests while a filter is set. */
    void setFilter(const QString& text);
    /**
     * Rows to leave out whatever the filter says, as WithholdingFilter does. Dragging rests.
     */
    void setWithheld(std::function<bool(const QModelIndex& source)> isWithheld);
    /** What to say and do when there is nothing, whatever the filter. */
    void setEmptyHint(const QString& text);

    /** Of the model, not of the filter. */
    [[nodiscard]] QModelIndex currentSource() const;
    [[nodiscard]] QModelIndexList selectedSources() const;
    /** Selects and shows a row of the model. */
    void selectSource(const QModelIndex& source);
    /** What is shown elsewhere is none of these rows. Emits nothing. */
    void clearCurrent();
    void renameSource(const QModelIndex& source);

    /** Rows are open at first; the ids of those the user closed. */
    [[nodiscard]] QStringList collapsedIds() const;
    void setCollapsedIds(const QStringList& ids);

signals:
    /** The current row is another one; invalid for none. */
    void currentSourceChanged(const QModelIndex& source);
    /** Clicked, or Return pressed. */
    void sourceActivated(const QModelIndex& source);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void rememberState();
    void restoreState();
    void restoreExpansion();
    void showHint();
    void refreshDragging();

    /** Rows that match and those beneath them, and of each the first column. */
    class Filter final : public WithholdingFilter
    {
    public:
        [[nodiscard]] bool isOff() const;

    protected:
        [[nodiscard]] bool filterAcceptsColumn(int column, const QModelIndex&) const override
        {
            return column == 0;
        }
        [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    };

    Filter m_filter;
    QLabel* m_hint;
    QString m_emptyHint;
    QString m_filterText;
    QSet<QString> m_collapsed;
    QStringList m_selectedIds;
    QString m_currentId;
    bool m_restoring = false;
};

} // namespace tw::desktop::trees
