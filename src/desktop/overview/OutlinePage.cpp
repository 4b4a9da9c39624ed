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

namespace tw::desktop::overview {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using manuscript::OutlineColumn;

namespace {

constexpr QLatin1StringView headerKey("outline/header");

int widthIn(OutlineColumn column, const QFontMetrics& metrics)
{
    const auto ofCharacters = [&metrics](int count) { return metrics.averageCharWidth() * count; };
    switch (column) {
    case OutlineColumn::Title:
        return ofCharacters(28);
    case OutlineColumn::Synopsis:
        return ofCharacters(32);
    case OutlineColumn::StoryDate:
        return ofCharacters(22);
    case OutlineColumn::Status:
    case OutlineColumn::PointOfView:
        return ofCharacters(14);
    case OutlineColumn::Words:
    case OutlineColumn::Target:
        break;
    }
    return ofCharacters(9);
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
    for (int column = 0; column < manuscript::outlineColumnCount; ++column)
        header.resizeSection(column, widthIn(static_cast<OutlineColumn>(column), fontMetrics()));
    header.restoreState(context().desk.settings.value(headerKey).toByteArray());
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
