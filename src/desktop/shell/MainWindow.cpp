#include "desktop/shell/MainWindow.h"

#include "core/document/DocumentTree.h"
#include "desktop/codex/CodexPanel.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/ManuscriptPanel.h"
#include "desktop/shell/DockLayout.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/RecentProjects.h"
#include "desktop/shell/StatusStrip.h"
#include "desktop/shell/WelcomePage.h"
#include "desktop/shell/WorkArea.h"
#include "desktop/trees/NavigatorTree.h"

#include <QCloseEvent>
#include <QCryptographicHash>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QStatusBar>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;
using app::persistence::SaveExtent;

namespace {

constexpr QSize firstSize{1440, 900};
constexpr int messageTime = 6000;

} // namespace

MainWindow::MainWindow(const DeskContext& desk, QString samplePath)
    : m_desk(desk)
    , m_samplePath(std::move(samplePath))
    , m_center(new QStackedWidget)
    , m_workArea(new WorkArea(desk, m_center))
    , m_welcome(new WelcomePage(desk.icons, !m_samplePath.isEmpty(), m_center))
    , m_emptyHint(new QLabel(tr("Choose a document in the manuscript or an entry in the codex."), m_center))
    , m_docks(nullptr)
    , m_status(new StatusStrip(desk, *statusBar()))
{
    setObjectName(u"mainWindow"_s);
    statusBar()->setSizeGripEnabled(false);
    m_center->addWidget(m_welcome);
    m_center->addWidget(m_workArea);
    m_center->addWidget(m_emptyHint);
    m_emptyHint->setAlignment(Qt::AlignCenter);
    m_emptyHint->setForegroundRole(QPalette::PlaceholderText);
    m_docks = new DockLayout(*this, m_center, desk.themes, desk.icons);
    addPanels();
    buildMenus();
    restoreWindow();

    connect(m_workArea, &WorkArea::currentPageChanged, m_status, &StatusStrip::setPage);
    connect(m_workArea, &WorkArea::currentPageChanged, this, &MainWindow::showCenter);
    connect(&desk.session, &ProjectSession::historyChanged, this, &MainWindow::refreshHistory);
    connect(&desk.session, &ProjectSession::saveStateChanged, this, &MainWindow::refreshTitle);
    connect(
        &desk.session, &ProjectSession::changed, this, [this](const core::project::ProjectChanges& changes) {
            if (changes.isEverything || changes.areSettingsChanged)
                refreshTitle();
        });
    connect(&desk.navigator, &Navigator::said, this, [this](const QString& text) {
        statusBar()->showMessage(text, messageTime);
    });
    // The page may be there already, behind the ways to begin.
    connect(&desk.navigator, &Navigator::openRequested, this, &MainWindow::showCenter);
    connect(m_welcome, &WelcomePage::backRequested, this, &MainWindow::showCenter);
    connect(m_welcome, &WelcomePage::newRequested, this, &MainWindow::newProject);
    connect(m_welcome, &WelcomePage::openRequested, this, &MainWindow::chooseAndOpen);
    connect(m_welcome, &WelcomePage::sampleRequested, this, &MainWindow::openSample);
    connect(m_welcome, &WelcomePage::recentRequested, this, &MainWindow::openProject);
    showCenter();
    refreshHistory();
    refreshTitle();
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
    m_docks->restore(m_desk.settings);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!settleUnsavedChanges()) {
        event->ignore();
        return;
    }
    rememberPages();
    m_desk.settings.setValue("window/geometry", saveGeometry());
    m_docks->save(m_desk.settings);
    event->accept();
}

bool MainWindow::openProject(const QString& path)
{
    if (!settleUnsavedChanges())
        return false;
    rememberPages();
    if (const auto opened = m_desk.session.open(path); !opened) {
        tell(tr("Open Project"), opened.message());
        RecentProjects(m_desk.settings).remove(path);
        showCenter();
        return false;
    }
    noteOpened();
    return true;
}

bool MainWindow::reopenLast()
{
    if (m_desk.settings.value("general/reopenLast", u"true"_s).toString() != u"true")
        return false;
    const QStringList recent = RecentProjects(m_desk.settings).paths();
    return !recent.isEmpty() && QFileInfo::exists(recent.first()) && openProject(recent.first());
}

void MainWindow::openSample()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString copy = documents + u"/Vellory/"_s + QFileInfo(m_samplePath).fileName();
    if (QFileInfo::exists(copy)) {
        openProject(copy);
        return;
    }
    // The sample itself stays as it came: the writer gets a copy to play with.
    if (!settleUnsavedChanges())
        return;
    rememberPages();
    auto opened = m_desk.session.open(m_samplePath);
    if (opened)
        opened = m_desk.session.saveAs(copy);
    if (!opened)
        tell(tr("Open the Sample"), opened.message());
    noteOpened();
}

void MainWindow::newProject()
{
    if (!settleUnsavedChanges())
        return;
    bool accepted = false;
    const QString name = QInputDialog::getText(
        this, tr("New Project"), tr("What is the project called?"), QLineEdit::Normal, tr("Untitled"),
        &accepted);
    if (!accepted)
        return;
    rememberPages();
    m_desk.session.startNew(name.trimmed().isEmpty() ? tr("Untitled") : name.trimmed());
    noteOpened();
}

void MainWindow::chooseAndOpen()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, tr("Open Project"), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    if (!folder.isEmpty())
        openProject(folder);
}

void MainWindow::saveProject()
{
    if (m_desk.session.workspace().hasPath())
        static_cast<void>(saveOrTell(SaveExtent::Changed));
    else
        saveProjectAs();
}

bool MainWindow::saveOrTell(SaveExtent extent)
{
    const auto saved = m_desk.session.save(extent);
    if (saved)
        statusBar()->showMessage(tr("Saved."), messageTime);
    else
        tell(tr("Save Project"), saved.message());
    return saved.isOk();
}

bool MainWindow::saveProjectAs()
{
    const QString suggestion = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u'/' +
                               m_desk.session.workspace().displayName();
    const QString folder = QFileDialog::getSaveFileName(
        this, tr("Save Project As a Folder"), suggestion, QString(), nullptr,
        QFileDialog::DontConfirmOverwrite);
    if (folder.isEmpty())
        return false;
    if (const auto saved = m_desk.session.saveAs(folder); !saved) {
        tell(tr("Save Project"), saved.message());
        return false;
    }
    RecentProjects(m_desk.settings).add(m_desk.session.workspace().displayPath());
    refreshTitle();
    return true;
}

void MainWindow::reloadProject()
{
    if (m_desk.session.isModified()) {
        QMessageBox question(
            QMessageBox::Question, tr("Read the Project Anew"),
            tr("“%1” has changes that are not saved. Reading it anew from disk drops them.")
                .arg(m_desk.session.workspace().displayName()),
            QMessageBox::Cancel, this);
        const QPushButton* const drop = question.addButton(tr("Drop Changes"), QMessageBox::DestructiveRole);
        question.exec();
        if (question.clickedButton() != drop)
            return;
    }
    if (const auto reloaded = m_desk.session.reload(); !reloaded)
        tell(tr("Read the Project Anew"), reloaded.message());
}

bool MainWindow::settleUnsavedChanges()
{
    m_desk.session.commitPendingEdits();
    if (!m_desk.session.isModified()) {
        // Nothing is unsaved, so a refusal because of others' changes loses nothing.
        if (m_desk.session.workspace().isFullSaveDue())
            static_cast<void>(m_desk.session.save(SaveExtent::Everything));
        return true;
    }
    QMessageBox question(
        QMessageBox::Question, tr("Unsaved Changes"),
        tr("“%1” has changes that are not saved.").arg(m_desk.session.workspace().displayName()),
        QMessageBox::NoButton, this);
    const QPushButton* const save = question.addButton(tr("Save"), QMessageBox::AcceptRole);
    const QPushButton* const discard =
        question.addButton(tr("Discard Changes"), QMessageBox::DestructiveRole);
    question.addButton(tr("Cancel"), QMessageBox::RejectRole);
    question.exec();
    if (question.clickedButton() == discard)
        return true;
    if (question.clickedButton() != save)
        return false;
    return m_desk.session.workspace().hasPath() ? saveOrTell(SaveExtent::Everything) : saveProjectAs();
}

void MainWindow::noteOpened()
{
    const auto& workspace = m_desk.session.workspace();
    if (workspace.hasPath()) {
        RecentProjects(m_desk.settings).add(workspace.displayPath());
        m_manuscript->tree().setCollapsedIds(
            m_desk.settings.value(projectKey(u"closedDocuments")).toStringList());
        m_codex->tree().setCollapsedIds(m_desk.settings.value(projectKey(u"closedEntries")).toStringList());
        m_workArea->restoreIds(m_desk.settings.value(projectKey(u"pages")).toStringList());
    }
    if (!m_workArea->hasPages())
        openFirstDocument();
    showCenter();
    refreshTitle();
    if (!workspace.libraryNotices().isEmpty())
        statusBar()->showMessage(workspace.libraryNotices().join(u' '), messageTime);
}

void MainWindow::openFirstDocument()
{
    const auto& project = m_desk.session.project();
    const core::document::DocumentTree tree = core::document::documentTree(project);
    const auto roots = tree.find({});
    if (roots == tree.end())
        return;
    for (const core::ContentId& root : roots->second) {
        for (const core::ContentId& id : core::document::documentSubtree(project, root)) {
            if (project.findAs<core::document::Document>(id)->body().text.isEmpty())
                continue;
            m_desk.navigator.open(id);
            return;
        }
    }
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
    m_desk.settings.setValue(projectKey(u"pages"), m_workArea->openIds());
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
    m_welcome->setRecent(RecentProjects(m_desk.settings).paths());
    m_welcome->setOpenProject(session.isProjectOpen() ? session.workspace().displayName() : QString());
    m_center->setCurrentWidget(m_welcome);
}

void MainWindow::showCenter()
{
    const bool isOpen = m_desk.session.isProjectOpen();
    if (!isOpen)
        showWelcome();
    else if (m_workArea->hasPages())
        m_center->setCurrentWidget(m_workArea);
    else
        m_center->setCurrentWidget(m_emptyHint);
    for (QAction* const action : m_projectActions)
        action->setEnabled(isOpen);
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

void MainWindow::tell(const QString& title, const QString& text)
{
    QMessageBox message(QMessageBox::Warning, title, text, QMessageBox::NoButton, this);
    message.addButton(tr("Close"), QMessageBox::AcceptRole);
    message.exec();
}

} // namespace tw::desktop::shell
