#include "desktop/shell/WorkArea.h"

#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/UnsavedObjects.h"

#include <QApplication>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int maximumPanes = 2;
/** Separates the panes in the list of open pages; the page that a pane shows has the other mark before it. */
constexpr QLatin1StringView paneMark{"|"};
constexpr QChar shownMark = u'*';
/** Before the title of a page with changes that are not on disk. */
const QString unsavedMark = u"• "_s;
/** Between object and view. */
constexpr QChar viewMark = u'/';

WorkPage* pageAt(const QTabWidget* pane, int index)
{
    return qobject_cast<WorkPage*>(pane->widget(index));
}

QString textOf(const PageAddress& address)
{
    const QString id = address.objectId.toString();
    return address.view.isEmpty() ? id : id + viewMark + address.view;
}

PageAddress addressFrom(QStringView text)
{
    const qsizetype mark = text.indexOf(viewMark);
    if (mark < 0)
        return {core::ContentId::fromString(text), {}};
    return {core::ContentId::fromString(text.first(mark)), text.sliced(mark + 1).toString()};
}

} // namespace

WorkArea::WorkArea(const DeskContext& desk, QWidget* parent)
    : QSplitter(Qt::Horizontal, parent)
    , m_desk(desk)
    , m_unsaved(new UnsavedObjects(desk.session, this))
{
    setObjectName(u"workArea"_s);
    setChildrenCollapsible(false);
    m_activePane = addPane();
    connect(&desk.session, &ProjectSession::changed, this, &WorkArea::followChanges);
    connect(m_unsaved, &UnsavedObjects::changed, this, &WorkArea::refreshTabs);
    connect(&desk.navigator, &Navigator::openRequested, this, [this](const core::ContentId& id) {
        openPage({id, {}});
    });
    connect(
        &desk.navigator, &Navigator::viewRequested, this,
        [this](const core::ContentId& id, const QString& view) {
            openPage({id, view});
        });
    connect(
        &desk.navigator, &Navigator::passageRequested, this,
        [this](const core::ContentId& id, const TextPassage& passage) {
            if (WorkPage* const page = currentPage(); page && page->objectId() == id)
                page->showPassage(passage);
        });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { followFocus(now); });
}

WorkArea::~WorkArea()
{
    // The pages go after this, and the keyboard with one of them.
    qApp->disconnect(this);
    for (int index = 0; index < count(); ++index)
        disconnect(widget(index), nullptr, this, nullptr);
}

void WorkArea::setFactory(core::content::ContentKind kind, PageFactory factory)
{
    m_factories.insert_or_assign(kind, std::move(factory));
}

void WorkArea::setViewFactory(const QString& view, PageFactory factory)
{
    m_viewFactories.insert_or_assign(view, std::move(factory));
}

std::set<core::content::ContentKind> WorkArea::shownKinds() const
{
    std::set<core::content::ContentKind> kinds;
    for (const auto& [kind, factory] : m_factories)
        kinds.insert(kind);
    return kinds;
}

bool WorkArea::canShow(const core::ContentId& id) const
{
    return id.isNull() || m_desk.session.project().contains(id);
}

const WorkArea::PageFactory* WorkArea::factoryFor(const PageAddress& address) const
{
    if (!address.view.isEmpty()) {
        const auto factory = m_viewFactories.find(address.view);
        return factory != m_viewFactories.end() && canShow(address.objectId) ? &factory->second : nullptr;
    }
    const auto* const object = m_desk.session.project().find(address.objectId);
    const auto factory = object ? m_factories.find(object->kind()) : m_factories.end();
    return factory == m_factories.end() ? nullptr : &factory->second;
}

QTabWidget* WorkArea::addPane()
{
    auto* const pane = new QTabWidget(this);
    pane->setDocumentMode(true);
    pane->setTabsClosable(true);
    pane->setMovable(true);
    pane->tabBar()->setElideMode(Qt::ElideRight);
    pane->tabBar()->setExpanding(false);
    pane->tabBar()->setAccessibleName(tr("Open pages"));
    pane->tabBar()->setVisible(m_areTabsVisible);
    addWidget(pane);
    connect(pane, &QTabWidget::tabCloseRequested, this, [this, pane](int index) { closeTab(pane, index); });
    connect(pane, &QTabWidget::currentChanged, this, [this, pane] { showPane(pane); });
    connect(pane, &QTabWidget::tabBarClicked, this, [this, pane] { showPane(pane); });
    return pane;
}

void WorkArea::setTabsVisible(bool areVisible)
{
    m_areTabsVisible = areVisible;
    for (int index = 0; index < count(); ++index)
        static_cast<QTabWidget*>(widget(index))->tabBar()->setVisible(areVisible);
}

QTabWidget* WorkArea::activePane() const
{
    return m_activePane;
}

WorkPage* WorkArea::currentPage() const
{
    return qobject_cast<WorkPage*>(activePane()->currentWidget());
}

bool WorkArea::hasPages() const
{
    for (int index = 0; index < count(); ++index) {
        if (static_cast<QTabWidget*>(widget(index))->count() > 0)
            return true;
    }
    return false;
}

std::vector<WorkPage*> WorkArea::shownPages() const
{
    std::vector<WorkPage*> pages;
    for (int index = 0; index < count(); ++index) {
        const auto* const pane = static_cast<const QTabWidget*>(widget(index));
        if (auto* const page = qobject_cast<WorkPage*>(pane->currentWidget()))
            pages.push_back(page);
    }
    return pages;
}

WorkPage* WorkArea::makePage(const PageAddress& address, QTabWidget* pane)
{
    const PageFactory* const factory = factoryFor(address);
    if (!factory)
        return nullptr;
    WorkPage* const page = (*factory)(address.objectId, pane);
    const int index = pane->addTab(page, page->icon(), QString());
    connect(page, &WorkPage::titleChanged, this, [this, page] { refreshTab(page); });
    refreshTab(page);
    pane->setCurrentIndex(index);
    return page;
}

void WorkArea::openPage(const PageAddress& address)
{
    QTabWidget* const pane = activePane();
    for (int index = 0; index < pane->count(); ++index) {
        if (WorkPage* const page = pageAt(pane, index); page && page->address() == address) {
            pane->setCurrentIndex(index);
            page->takeFocus();
            return;
        }
    }
    if (WorkPage* const page = makePage(address, pane))
        page->takeFocus();
    announceCurrent();
}

void WorkArea::openBeside(const PageAddress& address)
{
    if (!factoryFor(address))
        return;
    if (count() < maximumPanes && currentPage()) {
        static_cast<void>(addPane());
        setSizes({width() / 2, width() / 2});
    }
    if (count() > 1)
        m_activePane = static_cast<QTabWidget*>(widget(activePane() == widget(0) ? 1 : 0));
    openPage(address);
}

void WorkArea::splitCurrent()
{
    if (const WorkPage* const page = currentPage())
        openBeside(PageAddress(page->address()));
}

void WorkArea::closeCurrent()
{
    if (activePane()->currentIndex() >= 0)
        closeTab(activePane(), activePane()->currentIndex());
}

void WorkArea::closeTab(QTabWidget* pane, int index)
{
    m_desk.session.commitPendingEdits();
    QWidget* const page = pane->widget(index);
    pane->removeTab(index);
    page->deleteLater();
    if (pane->count() == 0 && count() > 1) {
        m_activePane = static_cast<QTabWidget*>(widget(pane == widget(0) ? 1 : 0));
        pane->setParent(nullptr);
        pane->deleteLater();
    }
    announceCurrent();
}

void WorkArea::closeAll()
{
    for (int paneIndex = count() - 1; paneIndex >= 0; --paneIndex) {
        auto* const pane = static_cast<QTabWidget*>(widget(paneIndex));
        while (pane->count() > 0)
            closeTab(pane, pane->count() - 1);
    }
}

void WorkArea::stepTab(int step)
{
    QTabWidget* const pane = activePane();
    if (pane->count() > 0)
        pane->setCurrentIndex((pane->currentIndex() + step + pane->count()) % pane->count());
}

void WorkArea::followFocus(QWidget* focused)
{
    for (int index = 0; focused && index < count(); ++index) {
        if (widget(index)->isAncestorOf(focused))
            showPane(static_cast<QTabWidget*>(widget(index)));
    }
}

void WorkArea::showPane(QTabWidget* pane)
{
    m_activePane = pane;
    announceCurrent();
}

void WorkArea::announceCurrent()
{
    WorkPage* const page = currentPage();
    if (page == m_announcedPage)
        return;
    m_announcedPage = page;
    if (page && !page->objectId().isNull())
        m_desk.navigator.setCurrent(page->objectId());
    emit currentPageChanged(page);
}

void WorkArea::refreshTab(WorkPage* page)
{
    for (int paneIndex = 0; paneIndex < count(); ++paneIndex) {
        auto* const pane = static_cast<QTabWidget*>(widget(paneIndex));
        if (const int index = pane->indexOf(page); index >= 0) {
            const QString title = page->title();
            const bool isMarked = isUnsaved(*page);
            // An ampersand in a title is no mnemonic.
            const QString text = QString(title).replace(u'&', u"&&"_s);
            pane->setTabText(index, isMarked ? unsavedMark + text : text);
            const QString spoken = isMarked ? tr("%1 (unsaved)").arg(title) : title;
            pane->setTabToolTip(index, spoken);
            pane->tabBar()->setAccessibleTabName(index, spoken);
            pane->setTabIcon(index, page->icon());
        }
    }
}

void WorkArea::refreshTabs()
{
    for (int paneIndex = 0; paneIndex < count(); ++paneIndex) {
        const auto* const pane = static_cast<QTabWidget*>(widget(paneIndex));
        for (int index = 0; index < pane->count(); ++index) {
            if (WorkPage* const page = pageAt(pane, index))
                refreshTab(page);
        }
    }
}

bool WorkArea::isUnsaved(const WorkPage& page) const
{
    const std::vector<core::ContentId> shown = page.shownObjects();
    return m_desk.session.isTypingPendingIn(page) ||
           std::ranges::any_of(shown, [this](const core::ContentId& id) { return m_unsaved->isUnsaved(id); });
}

void WorkArea::followChanges(const core::project::ProjectChanges& changes)
{
    if (changes.removed.empty() && !changes.isEverything)
        return;
    for (int paneIndex = count() - 1; paneIndex >= 0; --paneIndex) {
        auto* const pane = static_cast<QTabWidget*>(widget(paneIndex));
        for (int index = pane->count() - 1; index >= 0; --index) {
            const WorkPage* const page = pageAt(pane, index);
            if (page && !canShow(page->objectId()))
                closeTab(pane, index);
        }
    }
}

QStringList WorkArea::openAddresses() const
{
    QStringList addresses;
    for (int paneIndex = 0; paneIndex < count(); ++paneIndex) {
        const auto* const pane = static_cast<QTabWidget*>(widget(paneIndex));
        if (paneIndex > 0)
            addresses.append(paneMark);
        for (int index = 0; index < pane->count(); ++index) {
            const WorkPage* const page = pageAt(pane, index);
            if (!page)
                continue;
            const QString text = textOf(page->address());
            addresses.append(index == pane->currentIndex() ? shownMark + text : text);
        }
    }
    return addresses;
}

void WorkArea::restoreAddresses(const QStringList& addresses)
{
    std::vector<std::pair<QTabWidget*, int>> shown;
    for (const QString& text : addresses) {
        if (text == paneMark) {
            if (count() < maximumPanes && hasPages())
                m_activePane = addPane();
            continue;
        }
        const bool isShown = text.startsWith(shownMark);
        const PageAddress address = addressFrom(isShown ? QStringView(text).sliced(1) : QStringView(text));
        if (!factoryFor(address))
            continue;
        openPage(address);
        if (isShown)
            shown.emplace_back(activePane(), activePane()->currentIndex());
    }
    for (const auto& [pane, index] : shown)
        pane->setCurrentIndex(index);
    if (activePane()->count() == 0 && count() > 1) {
        delete m_activePane;
        m_activePane = static_cast<QTabWidget*>(widget(0));
    }
}

} // namespace tw::desktop::shell
