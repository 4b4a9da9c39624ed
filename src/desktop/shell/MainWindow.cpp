#include "desktop/shell/MainWindow.h"

#include "core/document/DocumentTree.h"
#include "desktop/assistant/ProjectTools.h"
#include "desktop/codex/CodexPanel.h"
#include "desktop/finder/CommandPalette.h"
#include "desktop/finder/FinderPopup.h"
#include "desktop/finder/GoToFinder.h"
#include "desktop/goals/WritingSession.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/ManuscriptPanel.h"
#include "desktop/manuscript/TextActions.h"
#include "desktop/project/ProjectFileDialogs.h"
#include "desktop/review/ExternalChanges.h"
#include "desktop/review/ReviewNotice.h"
#include "desktop/screenplay/ScreenplayActions.h"
#include "desktop/settings/AutosaveChoice.h"
#include "desktop/settings/Shortcuts.h"
#include "desktop/shell/AudienceSelector.h"
#include "desktop/shell/DockLayout.h"
#include "desktop/shell/FocusMode.h"
#include "desktop/shell/FocusRound.h"
#include "desktop/shell/NamedLayouts.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectLife.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/RecentProjects.h"
#include "desktop/shell/StatusStrip.h"
#include "desktop/shell/WelcomePage.h"
#include "desktop/shell/WorkArea.h"
#include "desktop/speech/ReadAloud.h"
#include "desktop/trees/NavigatorTree.h"

#include <QCloseEvent>
#include <QCryptographicHash>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include <algorithm>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize firstSize{1440, 900};
/** Milliseconds that a message stays at least, and that a letter of a long one takes to be read. */
constexpr int messageTime = 6000;
constexpr int letterTime = 80;

/** The first document with text; in a new project, the first that holds no others. Null for none. */
core::ContentId firstDocumentToWriteIn(const core::project::Project& project)
{
    const core::document::DocumentTree tree = core::document::documentTree(project);
    core::ContentId firstLeaf;
    for (const core::ContentId& id : core::document::documentsInReadingOrder(project)) {
        if (!project.findAs<core::document::Document>(id)->body().text.isEmpty())
            return id;
        if (firstLeaf.isNull() && !tree.contains(id))
            firstLeaf = id;
    }
    return firstLeaf;
}

} // namespace

MainWindow::MainWindow(const DeskContext& desk, QString samplePath)
    : m_desk(desk)
    , m_life(new ProjectLife(desk, std::move(samplePath), this))
    , m_center(new QStackedWidget)
    , m_work(new QWidget(m_center))
    , m_formatBar(new QToolBar(m_work))
    , m_workArea(new WorkArea(desk, m_work))
    , m_welcome(new WelcomePage(desk.icons, m_life->hasSample(), m_center))
    , m_emptyHint(new QLabel(tr("Choose a document in the manuscript or an entity in the codex."), m_center))
    , m_docks(new DockLayout(*this, m_center, desk.themes, desk.icons))
    , m_layouts(new NamedLayouts(*m_docks, desk.settings, desk.icons, this))
    , m_focusRound(std::make_unique<FocusRound>(*this, *m_docks, *m_center, *m_workArea))
    , m_shortcuts(new settings::Shortcuts(desk.settings, this))
    , m_palette(std::make_unique<finder::CommandPalette>(*m_shortcuts, desk.icons, desk.settings))
    , m_goTo(new finder::GoToFinder(desk, *m_workArea, this))
    , m_finder(new finder::FinderPopup(desk.themes, this))
    , m_writing(new goals::WritingSession(desk.session, &QDate::currentDate, this))
    , m_readAloud(new speech::ReadAloud(this))
    , m_status(new StatusStrip(desk, *m_writing, *statusBar()))
    , m_audience(new AudienceSelector(desk, menuBar()))
    , m_textActions(new manuscript::TextActions(desk, this))
    , m_screenplayActions(new screenplay::ScreenplayActions(desk, this))
    , m_focusMode(nullptr)
    , m_tools(new assistant::ProjectTools(desk.session, this))
{
    setObjectName(u"mainWindow"_s);
    setAcceptDrops(true);
    statusBar()->setSizeGripEnabled(false);
    m_center->addWidget(m_welcome);
    m_center->addWidget(m_work);
    m_center->addWidget(m_emptyHint);
    m_emptyHint->setAlignment(Qt::AlignCenter);
    m_emptyHint->setForegroundRole(QPalette::PlaceholderText);
    m_focusMode = new FocusMode(*this, *m_docks, *m_workArea);
    addPanels();
    buildMenus();
    buildFormatBar();
    restoreWindow();

    connect(m_workArea, &WorkArea::currentPageChanged, m_status, &StatusStrip::setPage);
    connect(m_workArea, &WorkArea::currentPageChanged, this, &MainWindow::followPage);
    connect(m_workArea, &WorkArea::currentPageChanged, this, &MainWindow::showCenter);
    connect(&desk.session, &ProjectSession::historyChanged, this, &MainWindow::refreshHistory);
    connect(&desk.session, &ProjectSession::typingBegan, this, &MainWindow::refreshHistory);
    connect(&desk.session, &ProjectSession::typingEnded, this, &MainWindow::refreshHistory);
    connect(&desk.session, &ProjectSession::saveStateChanged, this, &MainWindow::refreshTitle);
    connect(
        &desk.session, &ProjectSession::changed, this, [this](const core::project::ProjectChanges& changes) {
            if (changes.isEverything || changes.areSettingsChanged)
                refreshTitle();
        });
    connect(&desk.navigator, &Navigator::said, this, &MainWindow::say);
    // The page may be there already, behind the ways to begin.
    connect(&desk.navigator, &Navigator::openRequested, this, &MainWindow::showCenter);
    connect(&desk.navigator, &Navigator::viewRequested, this, &MainWindow::showCenter);
    desk.session.setAutosave(settings::autosaveFrom(desk.settings));
    connect(&desk.session, &ProjectSession::autosaveFailed, this, [this](const QString& message) {
        say(tr("Autosave failed: %1").arg(message));
    });
    connect(&desk.session, &ProjectSession::librariesRead, this, &MainWindow::sayLibraryNotices);
    followLife();
    showCenter();
    refreshHistory();
    refreshTitle();
}

void MainWindow::followLife()
{
    connect(m_life, &ProjectLife::aboutToLeave, this, &MainWindow::rememberPages);
    connect(m_life, &ProjectLife::opened, this, &MainWindow::noteOpened);
    connect(m_life, &ProjectLife::openFailed, this, &MainWindow::showCenter);
    connect(m_life, &ProjectLife::placeChanged, this, &MainWindow::refreshTitle);
    connect(m_life, &ProjectLife::said, this, &MainWindow::say);
    statusBar()->insertPermanentWidget(0, m_life->externalChanges().notice());
    connect(m_welcome, &WelcomePage::backRequested, this, &MainWindow::showCenter);
    connect(m_welcome, &WelcomePage::newRequested, m_life, &ProjectLife::startNew);
    connect(m_welcome, &WelcomePage::openRequested, m_life, &ProjectLife::chooseAndOpen);
    connect(m_welcome, &WelcomePage::sampleRequested, m_life, &ProjectLife::openSample);
    connect(m_welcome, &WelcomePage::openFolderRequested, m_life, &ProjectLife::chooseAndOpenFolder);
    // The page makes its list anew when this fails, which must not happen under the button that was pressed.
    connect(m_welcome, &WelcomePage::recentRequested, m_life, &ProjectLife::open, Qt::QueuedConnection);
    connect(
        m_welcome, &WelcomePage::forgetRequested, this,
        [this](const QString& path) {
            RecentProjects(m_desk.settings).remove(path);
            showWelcome();
        },
        Qt::QueuedConnection);
}

MainWindow::~MainWindow()
{
    // The pages go one by one while the window dies, and may hand over their last typing; it must not follow.
    disconnect(m_workArea, nullptr, this, nullptr);
    disconnect(&m_desk.session, nullptr, this, nullptr);
}

void MainWindow::restoreWindow()
{
    resize(firstSize);
    const QByteArray geometry = m_desk.settings.value("window/geometry").toByteArray();
    if (!geometry.isEmpty())
        restoreGeometry(geometry);
    m_layouts->restore();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_life->settleUnsavedChanges()) {
        event->ignore();
        return;
    }
    rememberPages();
    m_desk.settings.setValue("window/geometry", saveGeometry());
    m_layouts->save();
    m_life->end();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!project::projectIn(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QString path = project::projectIn(*event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    // The program that the project is dragged from waits until this returns; questions come afterwards.
    QTimer::singleShot(0, this, [this, path] { m_life->open(path); });
}

void MainWindow::noteOpened()
{
    const auto& workspace = m_desk.session.workspace();
    if (workspace.hasPath()) {
        RecentProjects(m_desk.settings).add(workspace.displayPath());
        m_manuscript->tree().setCollapsedIds(
            m_desk.settings.value(projectKey(u"closedDocuments")).toStringList());
        m_codex->tree().setCollapsedIds(m_desk.settings.value(projectKey(u"closedEntries")).toStringList());
        m_workArea->restoreAddresses(m_desk.settings.value(projectKey(u"pages")).toStringList());
        m_goTo->setVisited(m_desk.settings.value(projectKey(u"visited")).toStringList());
    }
    if (!m_workArea->hasPages())
        openFirstDocument();
    showCenter();
    refreshTitle();
}

void MainWindow::sayLibraryNotices()
{
    const QStringList& notices = m_desk.session.workspace().libraryNotices();
    if (!notices.isEmpty())
        say(notices.join(u' '));
}

void MainWindow::openFirstDocument()
{
    const core::ContentId id = firstDocumentToWriteIn(m_desk.session.project());
    if (!id.isNull())
        m_desk.navigator.open(id);
}

QString MainWindow::projectKey(QStringView what) const
{
    // Settings keys take slashes for groups; the hash of a path has none.
    const QByteArray path = m_desk.session.workspace().displayPath().toUtf8();
    const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
    return u"window/%1/%2"_s.arg(what, QString::fromLatin1(hash.first(16)));
}

void MainWindow::rememberPages()
{
    if (!m_desk.session.workspace().hasPath())
        return;
    m_desk.settings.setValue(projectKey(u"pages"), m_workArea->openAddresses());
    m_desk.settings.setValue(projectKey(u"visited"), m_goTo->visited());
    m_desk.settings.setValue(projectKey(u"closedDocuments"), m_manuscript->tree().collapsedIds());
    m_desk.settings.setValue(projectKey(u"closedEntries"), m_codex->tree().collapsedIds());
}

bool MainWindow::select(const QString& what)
{
    if (m_docks->showPanel(what))
        return true;
    const core::ContentId id = findObject(m_desk.session.project(), what);
    if (id.isNull())
        return false;
    m_desk.navigator.open(id);
    return true;
}

void MainWindow::showWelcome()
{
    const ProjectSession& session = m_desk.session;
    std::vector<RecentProject> recent;
    for (const QString& path : RecentProjects(m_desk.settings).paths())
        recent.push_back(describeRecent(path));
    m_welcome->setRecent(recent);
    m_welcome->setOpenProject(session.isProjectOpen() ? session.workspace().displayName() : QString());
    m_center->setCurrentWidget(m_welcome);
}

void MainWindow::showCenter()
{
    const bool isOpen = m_desk.session.isProjectOpen();
    if (!isOpen)
        showWelcome();
    else if (m_workArea->hasPages())
        m_center->setCurrentWidget(m_work);
    else
        m_center->setCurrentWidget(m_emptyHint);
    for (QAction* const action : m_projectActions)
        action->setEnabled(isOpen);
}

void MainWindow::say(const QString& text)
{
    statusBar()->showMessage(text, std::max(messageTime, static_cast<int>(text.size()) * letterTime));
}

void MainWindow::refreshTitle()
{
    const auto& session = m_desk.session;
    if (!session.isProjectOpen()) {
        setWindowTitle(tr("Vellory"));
        setWindowModified(false);
        return;
    }
    setWindowTitle(tr("%1[*] – Vellory").arg(session.workspace().displayName()));
    setWindowModified(session.isModified());
}

} // namespace tw::desktop::shell
