#include "desktop/overview/OutlinePage.h"

#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/ManuscriptModel.h"
#include "desktop/manuscript/StatusColors.h"
#include "desktop/overview/ChoiceDelegate.h"
#include "desktop/overview/CountDelegate.h"
#include "desktop/overview/DateDelegate.h"
#include "desktop/overview/OutlineTree.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/trees/OpenRows.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSettings>
#include <QTreeView>

#include <algorithm>

namespace tw::desktop::overview {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using manuscript::OutlineColumn;

namespace {

constexpr QLatin1StringView headerKey("outline/header");

/** In characters: what a column needs to be of use, and what shows most of its texts whole. */
struct ColumnWidth
{
    int least;
    int full;
};

ColumnWidth widthOf(OutlineColumn column)
{
    switch (column) {
    case OutlineColumn::Title:
        return {20, 28};
    case OutlineColumn::Synopsis:
        return {18, 32};
    case OutlineColumn::StoryDate:
        return {14, 22};
    case OutlineColumn::Status:
    case OutlineColumn::PointOfView:
        return {12, 14};
    case OutlineColumn::Words:
    case OutlineColumn::Target:
        break;
    }
    return {8, 9};
}

} // namespace

OutlinePage::OutlinePage(const OverviewContext& context, const ContentId& rootId, QWidget* parent)
    : OverviewPage(context, {rootId, outlineView}, parent)
    , m_tree(new OutlineTree(context.desk.session, this))
{
    m_tree->setAccessibleName(tr("Outline"));
    m_tree->setTextElideMode(Qt::ElideRight);
    m_tree->setAutoExpandDelay(600);
    setList(*m_tree, [this](const ContentId& id) { renameIn(id); });
    setUpColumns();
    connect(m_tree, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        if (!m_isRestoring)
            m_collapsed.insert(filter().idAt(index));
    });
    connect(m_tree, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        if (!m_isRestoring)
            m_collapsed.remove(filter().idAt(index));
    });
}

OutlinePage::~OutlinePage()
{
    if (m_isArranged)
        context().desk.settings.setValue(headerKey, m_tree->header()->saveState());
}

QIcon OutlinePage::icon() const
{
    return context().desk.icons.icon(icons::Icon::Columns);
}

void OutlinePage::setUpColumns()
{
    const auto delegate = [this](OutlineColumn column, std::function<QStringList()> choices) {
        m_tree->setItemDelegateForColumn(
            static_cast<int>(column), new ChoiceDelegate(std::move(choices), m_tree));
    };
    shell::ProjectSession& session = context().desk.session;
    delegate(OutlineColumn::Status, [&session] { return manuscript::orderedStatuses(session.project()); });
    delegate(
        OutlineColumn::PointOfView, [&session] { return manuscript::knownPointsOfView(session.project()); });
    m_tree->setItemDelegateForColumn(
        static_cast<int>(OutlineColumn::StoryDate), new DateDelegate(context().desk, m_tree));
    m_tree->setItemDelegateForColumn(static_cast<int>(OutlineColumn::Target), new CountDelegate(m_tree));
    QHeaderView& header = *m_tree->header();
    header.setSectionsMovable(true);
    header.setFirstSectionMovable(false);
    header.setStretchLastSection(false);
    m_isArranged = header.restoreState(context().desk.settings.value(headerKey).toByteArray());
    const auto noteArrangement = [this] { m_isArranged = m_isArranged || !m_isFitting; };
    connect(&header, &QHeaderView::sectionResized, this, noteArrangement);
    connect(&header, &QHeaderView::sectionMoved, this, noteArrangement);
    connect(m_tree, &OutlineTree::resized, this, &OutlinePage::fitColumns);
    fitColumns();
}

void OutlinePage::fitColumns()
{
    if (m_isArranged)
        return;
    const QScopedValueRollback guard(m_isFitting, true);
    const int character = fontMetrics().averageCharWidth();
    int least = 0;
    int full = 0;
    for (int column = 0; column < manuscript::outlineColumnCount; ++column) {
        least += character * widthOf(static_cast<OutlineColumn>(column)).least;
        full += character * widthOf(static_cast<OutlineColumn>(column)).full;
    }
    const int room = m_tree->viewport()->width();
    const double share = std::clamp((room - least) / static_cast<double>(full - least), 0.0, 1.0);
    int left = room;
    for (int column = 0; column < manuscript::outlineColumnCount; ++column) {
        const ColumnWidth width = widthOf(static_cast<OutlineColumn>(column));
        const int pixels = static_cast<int>(character * (width.least + share * (width.full - width.least)));
        m_tree->header()->resizeSection(column, pixels);
        left -= pixels;
    }
    // Nothing else has as much to say.
    const int synopsis = static_cast<int>(OutlineColumn::Synopsis);
    m_tree->header()->resizeSection(synopsis, m_tree->header()->sectionSize(synopsis) + std::max(0, left));
}

void OutlinePage::renameIn(const ContentId& id)
{
    QModelIndex index = m_tree->currentIndex();
    // F2 edits the cell where the writer is; a new document begins with its title.
    if (filter().idAt(index) != id || !index.flags().testFlag(Qt::ItemIsEditable))
        index = filter().indexOf(id);
    m_tree->setCurrentIndex(index);
    m_tree->edit(index);
}

void OutlinePage::restoreView()
{
    const QScopedValueRollback guard(m_isRestoring, true);
    for (const QModelIndex& index : trees::rowsToOpen(filter(), filter().rootIndex()))
        m_tree->setExpanded(index, !m_collapsed.contains(filter().idAt(index)));
}

} // namespace tw::desktop::overview
