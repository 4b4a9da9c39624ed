#include "desktop/trees/NavigatorTree.h"

#include "desktop/shell/AudienceSelector.h"
#include "desktop/trees/OpenRows.h"
#include "desktop/trees/TreeRoles.h"
#include "desktop/trees/TreeRowDelegate.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScopedValueRollback>

namespace tw::desktop::trees {

namespace {

constexpr int hintMargin = 24;

} // namespace

bool NavigatorTree::Filter::isOff() const
{
    return !isWithholding() && filterRegularExpression().pattern().isEmpty();
}

bool NavigatorTree::Filter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    if (isSourceWithheld(index))
        return false;
    for (QModelIndex each = index; each.isValid(); each = each.parent()) {
        if (QSortFilterProxyModel::filterAcceptsRow(each.row(), each.parent()))
            return true;
    }
    return false;
}

NavigatorTree::NavigatorTree(const shell::DeskContext& desk, QWidget* parent)
    : CommittingView(desk.session, parent)
    , m_hint(new QLabel(viewport()))
{
    setItemDelegate(new TreeRowDelegate(desk.themes, this));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed);
    setDragDropMode(InternalMove);
    setDropIndicatorShown(true);
    setAutoExpandDelay(600);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_hint->setWordWrap(true);
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex& index) {
        if (selectionModel()->selectedRows().size() == 1)
            emit sourceActivated(m_filter.mapToSource(index));
    });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        if (!m_restoring && m_filter.filterRegularExpression().pattern().isEmpty())
            m_collapsed.insert(index.data(IdRole).toString());
    });
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        if (!m_restoring && m_filter.filterRegularExpression().pattern().isEmpty())
            m_collapsed.remove(index.data(IdRole).toString());
    });
}

void NavigatorTree::setSource(QAbstractItemModel& source)
{
    // Remembered before the filter hears of the reset, restored after it.
    connect(&source, &QAbstractItemModel::modelAboutToBeReset, this, &NavigatorTree::rememberState);
    m_filter.setSourceModel(&source);
    setModel(&m_filter);
    connect(&m_filter, &QAbstractItemModel::modelReset, this, &NavigatorTree::restoreState);
    restoreState();
}

void NavigatorTree::setFilter(const QString& text)
{
    const QScopedValueRollback guard(m_restoring, true);
    m_filterText = text;
    m_filter.setFilterFixedString(text);
    refreshDragging();
    if (text.isEmpty())
        restoreExpansion();
    else
        expandAll();
    showHint();
}

void NavigatorTree::setWithheld(std::function<bool(const QModelIndex& source)> isWithheld)
{
    const QScopedValueRollback guard(m_restoring, true);
    m_filter.setWithheld(std::move(isWithheld));
    refreshDragging();
    restoreExpansion();
    showHint();
}

void NavigatorTree::refreshDragging()
{
    setDragEnabled(m_filter.isOff());
    setAcceptDrops(m_filter.isOff());
}

void NavigatorTree::setEmptyHint(const QString& text)
{
    m_emptyHint = text;
    showHint();
}

void NavigatorTree::showHint()
{
    m_hint->setGeometry(viewport()->rect().adjusted(hintMargin, hintMargin, -hintMargin, -hintMargin));
    // Where nothing is at all, the filter is not what keeps it away.
    const auto* const source = m_filter.sourceModel();
    const bool isNarrowed = !m_filter.isOff() && source && source->rowCount() > 0;
    if (isNarrowed && m_filterText.isEmpty())
        m_hint->setText(shell::nothingForAudience());
    else if (isNarrowed)
        m_hint->setText(
            tr("Nothing here contains “%1”. Clear the filter to see everything.").arg(m_filterText));
    else
        m_hint->setText(m_emptyHint);
    m_hint->setVisible(m_filter.rowCount() == 0);
}

void NavigatorTree::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    showHint();
}

QModelIndex NavigatorTree::currentSource() const
{
    return m_filter.mapToSource(currentIndex());
}

QModelIndexList NavigatorTree::selectedSources() const
{
    QModelIndexList sources;
    QModelIndexList rows = selectionModel()->selectedRows();
    // In the order in which they stand in the tree, not in which they were clicked.
    std::ranges::sort(rows, [this](const QModelIndex& left, const QModelIndex& right) {
        return visualRect(left).top() < visualRect(right).top();
    });
    for (const QModelIndex& row : rows)
        sources.append(m_filter.mapToSource(row));
    return sources;
}

void NavigatorTree::selectSource(const QModelIndex& source)
{
    const QModelIndex index = m_filter.mapFromSource(source);
    if (!index.isValid() || index == currentIndex())
        return;
    // Not by setCurrentIndex(), which looks at the keys that happen to be held.
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index);
}

void NavigatorTree::clearCurrent()
{
    const QScopedValueRollback guard(m_restoring, true);
    selectionModel()->clear();
}

void NavigatorTree::renameSource(const QModelIndex& source)
{
    selectSource(source);
    if (const QModelIndex index = m_filter.mapFromSource(source); index.isValid())
        QTreeView::edit(index);
}

QStringList NavigatorTree::collapsedIds() const
{
    return QStringList(m_collapsed.begin(), m_collapsed.end());
}

void NavigatorTree::setCollapsedIds(const QStringList& ids)
{
    m_collapsed = QSet<QString>(ids.begin(), ids.end());
    const QScopedValueRollback guard(m_restoring, true);
    restoreExpansion();
}

void NavigatorTree::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTreeView::currentChanged(current, previous);
    if (!m_restoring)
        emit currentSourceChanged(m_filter.mapToSource(current));
}

void NavigatorTree::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && state() != EditingState && currentIndex().isValid()) {
        emit sourceActivated(currentSource());
        return;
    }
    QTreeView::keyPressEvent(event);
}

void NavigatorTree::rememberState()
{
    m_selectedIds.clear();
    for (const QModelIndex& row : selectionModel()->selectedRows())
        m_selectedIds.append(row.data(IdRole).toString());
    m_currentId = currentIndex().data(IdRole).toString();
}

void NavigatorTree::restoreState()
{
    const QScopedValueRollback guard(m_restoring, true);
    restoreExpansion();
    showHint();
}

void NavigatorTree::restoreExpansion()
{
    // While a layout is due, a row that opens is merely noted; otherwise each would lay out the whole tree.
    scheduleDelayedItemsLayout();
    QModelIndex current;
    QModelIndexList selected;
    qsizetype sought = m_selectedIds.size() + (m_currentId.isEmpty() ? 0 : 1);
    for (const QModelIndex& index : rowsToOpen(m_filter)) {
        // There may be very many of these, and nobody closed them.
        if (sought == 0 && !m_filter.hasChildren(index)) {
            expand(index);
            continue;
        }
        const QString id = index.data(IdRole).toString();
        setExpanded(index, !m_collapsed.contains(id));
        if (id == m_currentId) {
            current = index;
            --sought;
        }
        if (m_selectedIds.contains(id)) {
            selected.append(index);
            --sought;
        }
    }
    if (current.isValid())
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    for (const QModelIndex& index : std::as_const(selected))
        selectionModel()->select(index, QItemSelectionModel::Select);
}

} // namespace tw::desktop::trees
