#pragma once

#include "desktop/icons/Icon.h"
#include "desktop/settings/SettingsPage.h"
#include "desktop/shell/DeskContext.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class QLabel;
class QStackedWidget;
class QToolBar;

namespace tw::desktop::codex {
class CodexPanel;
}
namespace tw::desktop::finder {
class CommandPalette;
class FinderPopup;
class GoToFinder;
} // namespace tw::desktop::finder
namespace tw::desktop::goals {
class WritingSession;
}
namespace tw::desktop::manuscript {
class DocumentPage;
class ManuscriptPanel;
class TextActions;
} // namespace tw::desktop::manuscript

namespace tw::desktop::screenplay {
class ScreenplayActions;
}
namespace tw::desktop::continuity {
class ContinuityProblems;
}
namespace tw::desktop::problems {
class ProblemsPanel;
}

namespace tw::desktop::assistant {
class ProjectTools;
}

namespace tw::desktop::proofreading {
class ProofreadingService;
}

namespace tw::desktop::search {
class SearchPanel;
}
namespace tw::desktop::snapshots {
class SnapshotsPanel;
}
namespace tw::desktop::settings {
class Shortcuts;
}
namespace tw::desktop::speech {
class ReadAloud;
}

namespace tw::desktop::shell {

class AudienceSelector;
class DockLayout;
class FocusMode;
class FocusRound;
class NamedLayouts;
class ProjectLife;
class StatusStrip;
class WelcomePage;
class WorkArea;
class WorkPage;

/**
 * The window: menus, docks around the work area, status bar, and the life of the project from opening to
 * closing. The parts of `desk` must outlive it.
 */
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /** `samplePath` is empty when no sample is installed. */
    MainWindow(const DeskContext& desk, QString samplePath);
    ~MainWindow() override;

    /** What opens and closes projects here. */
    [[nodiscard]] ProjectLife& life() { return *m_life; }
    /** Shows the ways to begin, also while a project is open. */
    void showWelcome();
    /** Shows an object, or a panel by its object name or an object by its exact title; false when there is
     * none. */
    bool select(const QString& what);

protected:
    void closeEvent(QCloseEvent* event) override;
    /** A project that is dropped on the window opens. */
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void addPanels();
    void addProblemsPanel();
    /** Proofreads whichever editor the page has. */
    void proofread(manuscript::DocumentPage& page);
    void buildMenus();
    /**
     * An action of the menu; the handler runs in the window's context. The name is stable: settings keep keys
     * by it.
     */
    QAction* addAction(
        QMenu& menu, const QString& name, icons::Icon icon, const QString& text, const QKeySequence& keys,
        std::function<void()> handler);
    void buildFileMenu();
    void buildEditMenu();
    void addFindActions(QMenu& menu);
    /** What can be done with what the cursor stands on. */
    void addCursorActions(QMenu& menu);
    void findInProject();
    void buildInsertMenu();
    void buildFormatMenu();
    void buildViewMenu();
    void buildFormatBar();
    void addFinders(QMenu& menu);
    void addWritingViews(QMenu& menu);
    void zoomPages(int steps);
    /** After a change of how texts are shown and counted. */
    void followEditorSettings();
    void followPage(WorkPage* page);
    void buildProjectMenu();
    void buildCodexMenu();
    void buildToolsMenu();
    void addReadAloud(QMenu& menu);
    void readAloud();
    void addProofreadingActions(QMenu& menu);
    void buildWindowsMenu();
    void buildHelpMenu();
    void showProblems();
    void showSettings(settings::SettingsPage page);
    void restoreWindow();

    void followLife();
    void noteOpened();
    void sayLibraryNotices();
    void rememberPages();
    /** The settings key under which something of the open project is remembered. */
    [[nodiscard]] QString projectKey(QStringView what) const;
    void fillRecentMenu();
    void refreshHistory();
    void refreshTitle();
    void openFirstDocument();
    void showCenter();
    /** In the status bar, for a while. */
    void say(const QString& text);

    DeskContext m_desk;
    ProjectLife* m_life;
    QStackedWidget* m_center;
    /** The work area, and the bar above it. */
    QWidget* m_work;
    QToolBar* m_formatBar;
    WorkArea* m_workArea;
    WelcomePage* m_welcome;
    QLabel* m_emptyHint;
    DockLayout* m_docks;
    NamedLayouts* m_layouts;
    std::unique_ptr<FocusRound> m_focusRound;
    settings::Shortcuts* m_shortcuts;
    std::unique_ptr<finder::CommandPalette> m_palette;
    finder::GoToFinder* m_goTo;
    /** Shows whichever of the two is open. */
    finder::FinderPopup* m_finder;
    goals::WritingSession* m_writing;
    speech::ReadAloud* m_readAloud;
    StatusStrip* m_status;
    AudienceSelector* m_audience;
    manuscript::TextActions* m_textActions;
    screenplay::ScreenplayActions* m_screenplayActions;
    FocusMode* m_focusMode;
    assistant::ProjectTools* m_tools;
    QMenu* m_recentMenu = nullptr;
    QAction* m_undoAction = nullptr;
    QAction* m_redoAction = nullptr;
    QAction* m_saveAction = nullptr;
    QAction* m_sourceAction = nullptr;
    QAction* m_focusAction = nullptr;
    QAction* m_formatBarAction = nullptr;
    /** What makes sense only with a project open. */
    QList<QAction*> m_projectActions;
    manuscript::ManuscriptPanel* m_manuscript = nullptr;
    codex::CodexPanel* m_codex = nullptr;
    proofreading::ProofreadingService* m_proofreading = nullptr;
    continuity::ContinuityProblems* m_continuity = nullptr;
    problems::ProblemsPanel* m_problems = nullptr;
    search::SearchPanel* m_search = nullptr;
    snapshots::SnapshotsPanel* m_snapshots = nullptr;
};

} // namespace tw::desktop::shell
