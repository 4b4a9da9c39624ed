#include "desktop/overview/OverviewPage.h"

#include "core/document/DocumentTree.h"
#include "desktop/manuscript/DocumentActions.h"
#include "desktop/manuscript/ManuscriptModel.h"
#include "desktop/shell/AudienceSelector.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/PanelHeader.h"
#include "desktop/shell/ProjectSession.h"

#include <QAbstractItemView>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <set>

namespace tw::desktop::overview {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::Document;

ContentId overviewRoot(const core::project::Project& project, const ContentId& currentId)
{
    const auto* const document = project.findAs<Document>(currentId);
    if (!document)
        return {};
    if (!core::document::childDocuments(project, currentId).empty())
        return currentId;
    return project.findAs<Document>(document->parentId()) ? document->parentId() : ContentId();
}

OverviewPage::OverviewPage(const OverviewContext& context, shell::PageAddress address, QWidget* parent)
    : WorkPage(std::move(address), parent)
    , m_context(context)
    , m_filter(new DocumentFilter(context.model, objectId(), this))
    , m_path(new QLabel(this))
    , m_hint(new QLabel(this))
    , m_header(new shell::PanelHeader(context.desk.icons, tr("Filter"), this))
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_path);
    m_layout->addWidget(m_header);
    m_path->setContentsMargins(16, 8, 16, 0);
    m_path->setTextFormat(Qt::RichText);
    m_path->setTextInteractionFlags(Qt::LinksAccessibleByKeyboard | Qt::LinksAccessibleByMouse);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_hint->setMargin(24);
    m_hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (QAction* const action : context.actions.insertActions())
        m_header->menu().addAction(action);
    m_header->menu().addSeparator();
    for (QAction* const action : context.actions.editActions())
        m_header->menu().addAction(action);

    connect(m_path, &QLabel::linkActivated, this, [this](const QString& link) {
        m_context.desk.navigator.openView(ContentId::fromString(link), this->address().view);
    });
    connect(m_header, &shell::PanelHeader::filterChanged, this, [this](const QString& text) {
        m_filter->setFilterFixedString(text);
        takeRoot();
    });
    connect(
        &context.desk.session, &shell::ProjectSession::changed, this,
        [this](const core::project::ProjectChanges& changes) {
            if (!changes.isEverything && changes.changed.empty() && changes.removed.empty())
                return;
            fillPath();
            emit titleChanged();
        });
    fillPath();
}

OverviewPage::~OverviewPage()
{
    // The list goes after this; a name that is still being edited in it is committed on its way out.
    if (m_attachedTo)
        m_attachedTo->detach(m_list);
    m_context.desk.session.disconnect(this);
    m_context.desk.navigator.disconnect(this);
}

void OverviewPage::setList(QAbstractItemView& list, const std::function<void(const ContentId&)>& rename)
{
    m_list = &list;
    m_layout->addWidget(&list, 1);
    // Over the list, which keeps the keyboard: the keys of the actions work in an empty one as well.
    auto* const hintLayout = new QVBoxLayout(list.viewport());
    hintLayout->addWidget(m_hint);
    setFocusProxy(&list);
    list.setModel(m_filter);
    list.setFrameShape(QFrame::NoFrame);
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    list.setEditTriggers(QAbstractItemView::EditKeyPressed);
    list.setDragDropMode(QAbstractItemView::InternalMove);
    list.setDragDropOverwriteMode(false);
    connect(m_filter, &QAbstractItemModel::modelReset, this, &OverviewPage::takeRoot);
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, &OverviewPage::showHint);
    connect(m_filter, &QAbstractItemModel::rowsRemoved, this, &OverviewPage::showHint);
    connect(&list, &QAbstractItemView::activated, this, [this](const QModelIndex& index) {
        activate(m_filter->idAt(index));
    });
    connect(
        list.selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& index) {
            const QScopedValueRollback guard(m_isSelecting, true);
            if (index.isValid())
                m_context.desk.navigator.setCurrent(m_filter->idAt(index));
        });
    connect(&m_context.desk.navigator, &shell::Navigator::currentChanged, this, &OverviewPage::selectCurrent);
    connect(
        &m_context.desk.navigator, &shell::Navigator::audienceChanged, this, &OverviewPage::followAudience);
    m_attachedTo = &m_context.actions;
    m_attachedTo->attach(
        {&list, objectId(), [this] { return m_filter->idAt(m_list->currentIndex()); },
         [this] {
             // Each row once, whatever columns of it are selected, in reading order.
             std::vector<ContentId> ids;
             QModelIndexList rows = m_list->selectionModel()->selectedIndexes();
             std::ranges::sort(rows, [this](const QModelIndex& left, const QModelIndex& right) {
                 const QPoint first = m_list->visualRect(left).topLeft();
                 const QPoint second = m_list->visualRect(right).topLeft();
                 return std::pair(first.y(), first.x()) < std::pair(second.y(), second.x());
             });
             for (const QModelIndex& row : rows) {
                 const ContentId id = m_filter->idAt(row);
                 if (std::ranges::find(ids, id) == ids.end())
                     ids.push_back(id);
             }
             return ids;
         },
         rename});
    followAudience();
}

void OverviewPage::followAudience()
{
    const QString& audience = m_context.desk.navigator.audience();
    m_filter->setWithheld(shell::withheldFrom(
        m_context.desk.session, audience,
        [this](const QModelIndex& source) { return m_context.model.idAt(source); }));
    // Between two cards others may lie unseen.
    m_list->setDragEnabled(audience.isEmpty());
    fillPath();
    takeRoot();
}

void OverviewPage::takeRoot()
{
    m_list->setRootIndex(m_filter->rootIndex());
    restoreView();
    selectCurrent(m_context.desk.navigator.current());
    showHint();
}

void OverviewPage::selectCurrent(const ContentId& id)
{
    const QModelIndex index = m_filter->indexOf(id);
    if (m_isSelecting || !index.isValid() || index == m_filter->rootIndex())
        return;
    // Only what lies in this list.
    bool isBelow = objectId().isNull();
    for (QModelIndex above = index.parent(); above.isValid() && !isBelow; above = above.parent())
        isBelow = m_filter->idAt(above) == objectId();
    if (isBelow && m_filter->idAt(m_list->currentIndex()) != id)
        m_list->selectionModel()->setCurrentIndex(
            index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void OverviewPage::activate(const ContentId& id)
{
    m_context.desk.navigator.open(id);
}

void OverviewPage::showHint()
{
    const bool isEmpty = m_filter->rowCount(m_filter->rootIndex()) == 0;
    if (!m_header->filterText().isEmpty())
        m_hint->setText(tr("Nothing here contains “%1”.").arg(m_header->filterText()));
    else if (m_context.model.rowCount(m_context.model.indexOf(objectId())) > 0)
        m_hint->setText(shell::nothingForAudience());
    else
        m_hint->setText(tr("No documents in here yet. Press Ctrl+Shift+N to add the first one."));
    m_hint->setVisible(isEmpty);
}

void OverviewPage::fillPath()
{
    const auto& project = m_context.desk.session.project();
    QStringList steps;
    std::set<ContentId> seen;
    ContentId id = objectId();
    while (const auto* const document = project.findAs<Document>(id)) {
        if (!seen.insert(id).second)
            break;
        const QString& audience = m_context.desk.navigator.audience();
        const bool isShown = audience.isEmpty() || document->isVisibleTo(audience);
        const QString name = isShown ? shell::objectTitle(*document).toHtmlEscaped() : u"…"_s;
        steps.prepend(id == objectId() ? name : u"<a href=\"%1\">%2</a>"_s.arg(id.toString(), name));
        id = document->parentId();
    }
    const QString top = tr("Manuscript");
    steps.prepend(objectId().isNull() ? top : u"<a href=\"%1\">%2</a>"_s.arg(ContentId().toString(), top));
    m_path->setText(steps.join(u" › "_s));
    m_path->setAccessibleName(tr("Where this is in the manuscript"));
}

QString OverviewPage::title() const
{
    const auto* const object = m_context.desk.session.project().find(objectId());
    return object ? shell::objectTitle(*object) : tr("Manuscript");
}

void OverviewPage::takeFocus()
{
    // The list would take the first row for the current one, and not show it.
    if (const QModelIndex first = m_filter->index(0, 0, m_filter->rootIndex());
        first.isValid() && !m_list->currentIndex().isValid())
        selectCurrent(m_filter->idAt(first));
    m_list->setFocus(Qt::OtherFocusReason);
}

std::vector<ContentId> OverviewPage::shownObjects() const
{
    const auto& project = m_context.desk.session.project();
    return objectId().isNull() ? core::document::documentsInReadingOrder(project)
                               : core::document::documentSubtree(project, objectId());
}

QString OverviewPage::statusText() const
{
    return tr("%n documents", nullptr, m_filter->rowCount(m_filter->rootIndex()));
}

} // namespace tw::desktop::overview
