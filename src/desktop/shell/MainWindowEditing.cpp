#include "desktop/shell/MainWindow.h"

#include "desktop/composition/CompositionPage.h"
#include "desktop/finder/CommandPalette.h"
#include "desktop/finder/FinderPopup.h"
#include "desktop/finder/GoToFinder.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/DocumentActions.h"
#include "desktop/manuscript/DocumentPage.h"
#include "desktop/manuscript/FindBar.h"
#include "desktop/manuscript/ManuscriptPanel.h"
#include "desktop/manuscript/PageStyle.h"
#include "desktop/manuscript/TextActions.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/overview/OverviewPage.h"
#include "desktop/screenplay/ScreenplayActions.h"
#include "desktop/search/SearchPanel.h"
#include "desktop/settings/SettingsDialog.h"
#include "desktop/shell/AudienceSelector.h"
#include "desktop/shell/DockLayout.h"
#include "desktop/shell/FocusMode.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/StatusStrip.h"
#include "desktop/shell/WorkArea.h"
#include "desktop/snapshots/SnapshotsPanel.h"
#include "desktop/theme/Theme.h"
#include "desktop/theme/ThemeManager.h"

#include <QAbstractItemView>
#include <QActionGroup>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSettings>
#include <QTextEdit>
#include <QToolBar>
#include <QVBoxLayout>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;
using icons::Icon;

namespace {

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

void pastePlainText(QWidget* focused)
{
    if (auto* const page = qobject_cast<manuscript::rich::RichPage*>(focused))
        page->pastePlainText();
    else
        editFocused(ClipboardEdit::Paste);
}

} // namespace

void MainWindow::buildEditMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&Edit"));
    m_undoAction = addAction(
        menu, u"edit.undo"_s, Icon::Undo, tr("Undo"), QKeySequence::Undo, [this] { m_desk.session.undo(); });
    m_redoAction = addAction(
        menu, u"edit.redo"_s, Icon::Redo, tr("Redo"), QKeySequence::Redo, [this] { m_desk.session.redo(); });
    m_redoAction->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    menu.addSeparator();
    addAction(menu, u"edit.cut"_s, Icon::Cut, tr("Cu&t"), QKeySequence::Cut, [] {
        editFocused(ClipboardEdit::Cut);
    });
    addAction(menu, u"edit.copy"_s, Icon::Copy, tr("&Copy"), QKeySequence::Copy, [] {
        editFocused(ClipboardEdit::Copy);
    });
    addAction(menu, u"edit.paste"_s, Icon::Paste, tr("&Paste"), QKeySequence::Paste, [] {
        editFocused(ClipboardEdit::Paste);
    });
    addAction(menu, u"edit.selectAll"_s, Icon::Check, tr("Select &All"), QKeySequence::SelectAll, [] {
        editFocused(ClipboardEdit::SelectAll);
    });
    addAction(
        menu, u"edit.pastePlain"_s, Icon::Paste, tr("Paste as P&lain Text"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V), [] { pastePlainText(QApplication::focusWidget()); });
    menu.addSeparator();
    addFindActions(menu);
    menu.addSeparator();
    addCursorActions(menu);
    menu.addSeparator();
    menu.addAction(m_snapshots->takeAction());
    menu.addSeparator();
    for (QAction* const action : m_manuscript->actions().editActions())
        menu.addAction(action);
}

void MainWindow::addFindActions(QMenu& menu)
{
    using manuscript::FindBar;
    const auto inText = [this](auto handler) {
        return [this, handler] {
            auto* const page = qobject_cast<manuscript::TextPage*>(m_workArea->currentPage());
            if (FindBar* const bar = page ? page->findBar() : nullptr)
                handler(*bar);
        };
    };
    addAction(menu, u"edit.find"_s, Icon::Search, tr("&Find…"), QKeySequence::Find, inText([](FindBar& bar) {
                  bar.open(FindBar::Row::Find);
              }));
    addAction(
        menu, u"edit.findNext"_s, Icon::ChevronDown, tr("Find Ne&xt"), QKeySequence(Qt::Key_F3),
        inText([](FindBar& bar) { bar.step(true); }));
    addAction(
        menu, u"edit.findPrevious"_s, Icon::ChevronUp, tr("Find Pre&vious"),
        QKeySequence(Qt::SHIFT | Qt::Key_F3), inText([](FindBar& bar) { bar.step(false); }));
    addAction(
        menu, u"edit.replace"_s, Icon::Refresh, tr("R&eplace…"), QKeySequence(Qt::CTRL | Qt::Key_H),
        inText([](FindBar& bar) { bar.open(FindBar::Row::FindAndReplace); }));
    m_projectActions.append(addAction(
        menu, u"edit.findInProject"_s, Icon::Search, tr("Find in the Pro&ject…"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F), [this] { findInProject(); }));
}

void MainWindow::addCursorActions(QMenu& menu)
{
    const auto atCursor = [this](bool (manuscript::rich::RichPage::*act)(), const QString& otherwise) {
        return [this, act, otherwise] {
            const auto* const page = qobject_cast<manuscript::TextPage*>(m_workArea->currentPage());
            manuscript::rich::RichPage* const text = page ? page->richPage() : nullptr;
            if (!text || !(text->*act)())
                say(otherwise);
        };
    };
    using manuscript::rich::RichPage;
    addAction(
        menu, u"edit.openEntity"_s, Icon::Link, tr("Follow Link, Note or Na&me"), QKeySequence(Qt::Key_F12),
        atCursor(
            &RichPage::followAtCursor, tr("There is no link, note or name from the codex at the cursor.")));
    addAction(
        menu, u"edit.showCard"_s, Icon::Entity, tr("S&how Card of the Name"),
        QKeySequence(Qt::SHIFT | Qt::Key_F12),
        atCursor(&RichPage::showCardAtCursor, tr("There is no name from the codex at the cursor.")));
}

void MainWindow::findInProject()
{
    const auto* const page = qobject_cast<manuscript::TextPage*>(m_workArea->currentPage());
    const manuscript::BodyEditor* const editor = page ? page->currentEditor() : nullptr;
    QString selected = editor ? editor->textCursor().selectedText() : QString();
    // Nobody looks for paragraphs.
    if (selected.contains(QChar::ParagraphSeparator))
        selected.clear();
    m_docks->showPanel(u"search"_s);
    m_search->lookFor(selected);
}

void MainWindow::buildInsertMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&Insert"));
    for (QAction* const action : m_manuscript->actions().insertActions()) {
        menu.addAction(action);
        m_projectActions.append(action);
    }
    menu.addSeparator();
    m_textActions->fillInsertMenu(menu);
}

void MainWindow::buildFormatMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("F&ormat"));
    m_textActions->fillFormatMenu(menu);
    menu.addSeparator();
    m_screenplayActions->fillMenu(*menu.addMenu(m_desk.icons.icon(Icon::Screenplay), tr("Screenpla&y")));
    menu.addSeparator();
    addAction(menu, u"format.pageFont"_s, Icon::Text, tr("Page &Font…"), {}, [this] {
        showSettings(settings::SettingsPage::Editor);
    });
}

void MainWindow::zoomPages(int steps)
{
    manuscript::stepPageZoom(m_desk.settings, steps);
    for (manuscript::TextPage* const page : m_workArea->findChildren<manuscript::TextPage*>())
        page->applyStyle();
}

void MainWindow::followEditorSettings()
{
    zoomPages(0);
    m_status->followSettings();
}

void MainWindow::buildViewMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&View"));
    addFinders(menu);
    menu.addSeparator();
    QMenu* const themes = menu.addMenu(m_desk.icons.icon(Icon::Theme), tr("&Theme"));
    auto* const group = new QActionGroup(this);
    const auto addTheme = [&](const QString& choice, const QString& title) {
        QAction* const action = themes->addAction(title);
        action->setObjectName(u"view.theme"_s + choice);
        action->setCheckable(true);
        // The choice may be made elsewhere as well.
        connect(themes, &QMenu::aboutToShow, action, [this, action, choice] {
            action->setChecked(m_desk.themes.choice() == choice);
        });
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, choice] { m_desk.themes.setChoice(choice); });
    };
    for (const theme::Theme& theme : theme::builtInThemes())
        addTheme(theme.name, theme.title());
    themes->addSeparator();
    addTheme(theme::ThemeManager::systemChoice, tr("Follow the System"));
    menu.addSeparator();
    m_projectActions.append(addAction(
        menu, u"view.text"_s, Icon::Document, tr("Te&xt"), QKeySequence(Qt::CTRL | Qt::Key_1),
        [this] { m_desk.navigator.open(m_desk.navigator.current()); }));
    const auto addOverview = [&](const QString& name, Icon icon, const QString& text, int key,
                                 QLatin1StringView view) {
        m_projectActions.append(addAction(menu, name, icon, text, QKeySequence(Qt::CTRL | key), [this, view] {
            m_desk.navigator.openView(
                overview::overviewRoot(m_desk.session.project(), m_desk.navigator.current()), view);
        }));
    };
    addOverview(u"view.corkboard"_s, Icon::Layout, tr("Cor&kboard"), Qt::Key_2, overview::corkboardView);
    addOverview(
        u"view.composition"_s, Icon::Manuscript, tr("Continuous T&ext"), Qt::Key_4,
        composition::compositionView);
    addOverview(u"view.outline"_s, Icon::Columns, tr("Out&line"), Qt::Key_3, overview::outlineView);
    menu.addSeparator();
    addAction(
        menu, u"view.zoomIn"_s, Icon::Add, tr("Zoom &In"), QKeySequence::ZoomIn, [this] { zoomPages(1); });
    addAction(menu, u"view.zoomOut"_s, Icon::Minus, tr("Zoom &Out"), QKeySequence::ZoomOut, [this] {
        zoomPages(-1);
    });
    addAction(
        menu, u"view.actualSize"_s, Icon::Search, tr("&Actual Size"), QKeySequence(Qt::CTRL | Qt::Key_0),
        [this] {
            m_desk.settings.remove("editor/zoom");
            zoomPages(0);
        });
    menu.addSeparator();
    addAction(menu, u"view.audience"_s, Icon::Eye, tr("Vie&w As…"), {}, [this] { m_audience->open(); });
    menu.addSeparator();
    addWritingViews(menu);
    menu.addSeparator();
    addAction(
        menu, u"view.split"_s, Icon::Split, tr("&Split Side by Side"),
        QKeySequence(Qt::CTRL | Qt::Key_Backslash), [this] { m_workArea->splitCurrent(); });
    addAction(
        menu, u"view.nextTab"_s, Icon::ChevronRight, tr("&Next Tab"),
        QKeySequence(Qt::CTRL | Qt::Key_PageDown), [this] { m_workArea->stepTab(1); });
    addAction(
        menu, u"view.previousTab"_s, Icon::ChevronLeft, tr("&Previous Tab"),
        QKeySequence(Qt::CTRL | Qt::Key_PageUp), [this] { m_workArea->stepTab(-1); });
    addAction(menu, u"view.closeTab"_s, Icon::Close, tr("&Close Tab"), QKeySequence::Close, [this] {
        m_workArea->closeCurrent();
    });
    menu.addSeparator();
    addAction(menu, u"fullScreen"_s, Icon::FullScreen, tr("&Full Screen"), QKeySequence(Qt::Key_F11), [this] {
        setWindowState(windowState() ^ Qt::WindowFullScreen);
    });
}

void MainWindow::addFinders(QMenu& menu)
{
    m_projectActions.append(addAction(
        menu, u"view.goTo"_s, Icon::Target, tr("&Go to…"), QKeySequence(Qt::CTRL | Qt::Key_P),
        [this] { m_finder->open(*m_goTo); }));
    addAction(
        menu, u"view.commandPalette"_s, Icon::Palette, tr("Comman&d Palette…"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P), [this] { m_finder->open(*m_palette); });
}

void MainWindow::addWritingViews(QMenu& menu)
{
    const auto currentDocument = [this] {
        return qobject_cast<manuscript::DocumentPage*>(m_workArea->currentPage());
    };
    m_sourceAction = addAction(
        menu, u"view.markdownSource"_s, Icon::Number, tr("Markdown So&urce"),
        QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_M), [this, currentDocument] {
            if (auto* const page = currentDocument())
                page->setSourceShown(m_sourceAction->isChecked());
        });
    m_sourceAction->setCheckable(true);
    const auto isPageView = [this] { return manuscript::pageStyleFrom(m_desk.settings).isPageView; };
    QAction* const pageView =
        addAction(menu, u"view.page"_s, Icon::Document, tr("Page &View"), {}, [this, isPageView] {
            manuscript::setPageView(m_desk.settings, !isPageView());
            zoomPages(0);
        });
    pageView->setCheckable(true);
    pageView->setChecked(isPageView());
    m_formatBarAction = addAction(menu, u"view.formatBar"_s, Icon::Text, tr("Format &Bar"), {}, [this] {
        m_desk.settings.setValue("view/formatBar", m_formatBarAction->isChecked());
        followPage(m_workArea->currentPage());
    });
    m_formatBarAction->setCheckable(true);
    m_formatBarAction->setChecked(m_desk.settings.value("view/formatBar", true).toBool());
    QAction* const typewriter =
        addAction(menu, u"view.typewriter"_s, Icon::Focus, tr("T&ypewriter Scrolling"), {}, [this] {
            const bool isOn = m_desk.settings.value("editor/typewriterScrolling").toBool();
            m_desk.settings.setValue("editor/typewriterScrolling", !isOn);
            zoomPages(0);
        });
    typewriter->setCheckable(true);
    typewriter->setChecked(m_desk.settings.value("editor/typewriterScrolling").toBool());
    m_focusAction = addAction(
        menu, u"view.focusMode"_s, Icon::Focus, tr("Focus &Mode"), QKeySequence(Qt::CTRL | Qt::Key_F11),
        [this] { m_focusMode->setOn(!m_focusMode->isOn()); });
    m_focusAction->setCheckable(true);
    connect(m_focusMode, &FocusMode::changed, this, [this](bool isOn) {
        m_focusAction->setChecked(isOn);
        followPage(m_workArea->currentPage());
    });
}

void MainWindow::buildFormatBar()
{
    m_formatBar->setAccessibleName(tr("Format"));
    m_formatBar->setIconSize({18, 18});
    m_textActions->fillBar(*m_formatBar);
    auto* const layout = new QVBoxLayout(m_work);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_formatBar);
    layout->addWidget(m_workArea, 1);
    connect(m_textActions, &manuscript::TextActions::pageStyleChanged, this, [this] { zoomPages(0); });
    connect(m_textActions, &manuscript::TextActions::availableChanged, this, [this] {
        followPage(m_workArea->currentPage());
    });
    followPage(nullptr);
}

void MainWindow::followPage(WorkPage* page)
{
    auto* const document = qobject_cast<manuscript::DocumentPage*>(page);
    auto* const text = qobject_cast<manuscript::TextPage*>(page);
    m_textActions->setPage(text);
    m_screenplayActions->setPage(text);
    m_focusMode->setPage(document);
    const bool isRich = text && text->richPage();
    m_formatBar->setVisible(isRich && m_formatBarAction->isChecked() && !m_focusMode->isOn());
    m_sourceAction->setEnabled(document != nullptr);
    m_sourceAction->setChecked(document && document->textView() == manuscript::TextView::MarkdownSource);
    m_focusAction->setEnabled(document != nullptr);
}

void MainWindow::refreshHistory()
{
    const ProjectSession& session = m_desk.session;
    m_undoAction->setEnabled(session.canUndo());
    // What is still being typed has no name.
    const bool isNamed = session.canUndo() && !session.isTypingPending();
    m_undoAction->setText(isNamed ? tr("Undo %1").arg(session.undoText()) : tr("Undo"));
    m_redoAction->setEnabled(session.canRedo());
    m_redoAction->setText(session.canRedo() ? tr("Redo %1").arg(session.redoText()) : tr("Redo"));
}

} // namespace tw::desktop::shell
