#include "desktop/shell/MainWindow.h"

#include "desktop/codex/CodexPanel.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/DocumentPage.h"
#include "desktop/manuscript/ManuscriptPanel.h"
#include "desktop/manuscript/MarkdownPage.h"
#include "desktop/review/ExternalChanges.h"
#include "desktop/shell/DockLayout.h"
#include "desktop/shell/ProjectLife.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/RecentProjects.h"
#include "desktop/shell/WorkArea.h"
#include "desktop/theme/Theme.h"
#include "desktop/theme/ThemeManager.h"

#include <QAbstractItemView>
#include <QActionGroup>
#include <QApplication>
#include <QDir>
#include <QFontDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QSettings>
#include <QTextEdit>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;
using icons::Icon;

namespace {

constexpr int shownRecent = 10;

enum class ClipboardEdit
{
    Cut,
    Copy,
    Paste,
    SelectAll,
};

template <class Editor>
bool editIn(QWidget* focused, ClipboardEdit edit)
{
    auto* const editor = qobject_cast<Editor*>(focused);
    if (!editor)
        return false;
    switch (edit) {
    case ClipboardEdit::Cut:
        editor->cut();
        break;
    case ClipboardEdit::Copy:
        editor->copy();
        break;
    case ClipboardEdit::Paste:
        editor->paste();
        break;
    case ClipboardEdit::SelectAll:
        editor->selectAll();
        break;
    }
    return true;
}

/** Does the edit in whatever has the keyboard; nothing where there is no text. */
void editFocused(ClipboardEdit edit)
{
    QWidget* const focused = QApplication::focusWidget();
    if (editIn<QTextEdit>(focused, edit) || editIn<QPlainTextEdit>(focused, edit) ||
        editIn<QLineEdit>(focused, edit))
        return;
    if (auto* const view = qobject_cast<QAbstractItemView*>(focused);
        view && edit == ClipboardEdit::SelectAll)
        view->selectAll();
}

} // namespace

template <class Handler>
QAction* MainWindow::addAction(
    QMenu& menu, Icon icon, const QString& text, const QKeySequence& keys, Handler handler)
{
    QAction* const action = menu.addAction(m_desk.icons.icon(icon), text);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, handler);
    return action;
}

void MainWindow::buildMenus()
{
    buildFileMenu();
    buildEditMenu();
    buildInsertMenu();
    buildFormatMenu();
    buildViewMenu();
    buildCodexMenu();
    QMenu* const windows = menuBar()->addMenu(tr("&Windows"));
    windows->setObjectName(u"windowsMenu"_s);
    m_docks->fillMenu(*windows);
    buildHelpMenu();
}

void MainWindow::buildFileMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&File"));
    addAction(menu, Icon::New, tr("&New Project…"), QKeySequence::New, [this] { m_life->startNew(); });
    addAction(
        menu, Icon::Open, tr("&Open Project…"), QKeySequence::Open, [this] { m_life->chooseAndOpen(); });
    m_recentMenu = menu.addMenu(m_desk.icons.icon(Icon::History), tr("Open &Recent"));
    connect(m_recentMenu, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
    if (m_life->hasSample())
        addAction(menu, Icon::Manuscript, tr("Open the Sa&mple"), {}, [this] { m_life->openSample(); });
    menu.addSeparator();
    m_saveAction = addAction(menu, Icon::Save, tr("&Save"), QKeySequence::Save, [this] { m_life->save(); });
    m_projectActions = {
        m_saveAction,
        addAction(
            menu, Icon::Export, tr("Save &As…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
            [this] { m_life->saveAs(); }),
        addAction(menu, Icon::Refresh, tr("Read Anew from &Disk"), {}, [this] { m_life->reload(); }),
        addAction(
            menu, Icon::Search, tr("&Check for External Changes…"), {},
            [this] { m_life->externalChanges().check(); }),
    };
    menu.addSeparator();
    addAction(menu, Icon::Close, tr("&Quit"), QKeySequence::Quit, [this] { close(); });
}

void MainWindow::buildEditMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&Edit"));
    m_undoAction =
        addAction(menu, Icon::Undo, tr("Undo"), QKeySequence::Undo, [this] { m_desk.session.undo(); });
    m_redoAction =
        addAction(menu, Icon::Redo, tr("Redo"), QKeySequence::Redo, [this] { m_desk.session.redo(); });
    m_redoAction->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    menu.addSeparator();
    addAction(menu, Icon::Cut, tr("Cu&t"), QKeySequence::Cut, [] { editFocused(ClipboardEdit::Cut); });
    addAction(menu, Icon::Copy, tr("&Copy"), QKeySequence::Copy, [] { editFocused(ClipboardEdit::Copy); });
    addAction(
        menu, Icon::Paste, tr("&Paste"), QKeySequence::Paste, [] { editFocused(ClipboardEdit::Paste); });
    addAction(menu, Icon::Check, tr("Select &All"), QKeySequence::SelectAll, [] {
        editFocused(ClipboardEdit::SelectAll);
    });
    menu.addSeparator();
    for (QAction* const action : m_manuscript->editActions())
        menu.addAction(action);
}

void MainWindow::buildInsertMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&Insert"));
    for (QAction* const action : m_manuscript->insertActions()) {
        menu.addAction(action);
        m_projectActions.append(action);
    }
}

void MainWindow::buildCodexMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&Codex"));
    for (QAction* const action : m_codex->menuActions())
        menu.addAction(action);
}

void MainWindow::buildFormatMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("F&ormat"));
    addAction(menu, Icon::Text, tr("Page &Font…"), {}, [this] { choosePageFont(); });
}

void MainWindow::choosePageFont()
{
    const manuscript::PageStyle style = manuscript::pageStyleFrom(m_desk.settings);
    QFont font(style.fontFamily);
    font.setPointSizeF(style.fontPointSize);
    bool accepted = false;
    font = QFontDialog::getFont(&accepted, font, this, tr("Page Font"));
    if (!accepted)
        return;
    m_desk.settings.setValue("editor/fontFamily", font.family());
    m_desk.settings.setValue("editor/fontSize", font.pointSizeF());
    zoomPages(0);
}

void MainWindow::zoomPages(int steps)
{
    manuscript::stepPageZoom(m_desk.settings, steps);
    for (manuscript::DocumentPage* const page : m_workArea->findChildren<manuscript::DocumentPage*>())
        page->applyStyle();
}

void MainWindow::buildViewMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&View"));
    QMenu* const themes = menu.addMenu(m_desk.icons.icon(Icon::Theme), tr("&Theme"));
    auto* const group = new QActionGroup(this);
    const auto addTheme = [&](const QString& choice, const QString& title) {
        QAction* const action = themes->addAction(title);
        action->setCheckable(true);
        action->setChecked(m_desk.themes.choice() == choice);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, choice] { m_desk.themes.setChoice(choice); });
    };
    for (const theme::Theme& theme : theme::builtInThemes())
        addTheme(theme.name, theme.title());
    themes->addSeparator();
    addTheme(theme::ThemeManager::systemChoice, tr("Follow the System"));
    menu.addSeparator();
    addAction(menu, Icon::Add, tr("Zoom &In"), QKeySequence::ZoomIn, [this] { zoomPages(1); });
    addAction(menu, Icon::Minus, tr("Zoom &Out"), QKeySequence::ZoomOut, [this] { zoomPages(-1); });
    addAction(menu, Icon::Search, tr("&Actual Size"), QKeySequence(Qt::CTRL | Qt::Key_0), [this] {
        m_desk.settings.remove("editor/zoom");
        zoomPages(0);
    });
    menu.addSeparator();
    addAction(
        menu, Icon::Split, tr("&Split Side by Side"), QKeySequence(Qt::CTRL | Qt::Key_Backslash),
        [this] { m_workArea->splitCurrent(); });
    addAction(menu, Icon::ChevronRight, tr("&Next Tab"), QKeySequence(Qt::CTRL | Qt::Key_PageDown), [this] {
        m_workArea->stepTab(1);
    });
    addAction(menu, Icon::ChevronLeft, tr("&Previous Tab"), QKeySequence(Qt::CTRL | Qt::Key_PageUp), [this] {
        m_workArea->stepTab(-1);
    });
    addAction(
        menu, Icon::Close, tr("&Close Tab"), QKeySequence::Close, [this] { m_workArea->closeCurrent(); });
    menu.addSeparator();
    QAction* const fullScreen =
        addAction(menu, Icon::FullScreen, tr("&Full Screen"), QKeySequence(Qt::Key_F11), [this] {
            setWindowState(windowState() ^ Qt::WindowFullScreen);
        });
    fullScreen->setObjectName(u"fullScreen"_s);
}

void MainWindow::buildHelpMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&Help"));
    addAction(menu, Icon::Information, tr("&About Vellory"), {}, [this] {
        QMessageBox about(
            QMessageBox::NoIcon, tr("About Vellory"),
            tr("<h3>Vellory %1</h3><p>A writing and worldbuilding workspace for novelists, screenwriters and "
               "game "
               "masters.</p><p>Free software under the GNU General Public License, version 3 or later.</p>")
                .arg(QApplication::applicationVersion()),
            QMessageBox::NoButton, this);
        about.setIconPixmap(icons::applicationIcon().pixmap(64, 64));
        about.addButton(tr("Close"), QMessageBox::AcceptRole);
        about.exec();
    });
}

void MainWindow::fillRecentMenu()
{
    m_recentMenu->clear();
    const QStringList recent = RecentProjects(m_desk.settings).paths();
    for (const QString& path : recent.first(std::min<qsizetype>(recent.size(), shownRecent))) {
        QAction* const action = m_recentMenu->addAction(QDir(path).dirName());
        action->setToolTip(QDir::toNativeSeparators(path));
        connect(action, &QAction::triggered, this, [this, path] { m_life->open(path); });
    }
    if (recent.isEmpty())
        m_recentMenu->addAction(tr("Nothing opened yet"))->setEnabled(false);
}

void MainWindow::refreshHistory()
{
    const ProjectSession& session = m_desk.session;
    m_undoAction->setEnabled(session.canUndo());
    m_undoAction->setText(session.canUndo() ? tr("Undo %1").arg(session.undoText()) : tr("Undo"));
    m_redoAction->setEnabled(session.canRedo());
    m_redoAction->setText(session.canRedo() ? tr("Redo %1").arg(session.redoText()) : tr("Redo"));
}

} // namespace tw::desktop::shell
