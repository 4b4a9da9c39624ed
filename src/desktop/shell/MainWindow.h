#pragma once

#include "app/persistence/FolderSaver.h"
#include "desktop/icons/Icon.h"
#include "desktop/shell/DeskContext.h"

#include <QMainWindow>

class QLabel;
class QStackedWidget;

namespace tw::desktop::codex {
class CodexPanel;
}
namespace tw::desktop::manuscript {
class ManuscriptPanel;
}

namespace tw::desktop::shell {

class DockLayout;
class StatusStrip;
class WelcomePage;
class WorkArea;

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

    /** Opens a project folder; a failure is told in a message. Asks first when something is unsaved. */
    bool openProject(const QString& path);
    /** Opens the project of the last session when that is wanted and possible. */
    bool reopenLast();
    /** Shows the ways to begin, also while a project is open. */
    void showWelcome();
    /** Shows an object, or a panel by its object name or an object by its exact title; false when there is
     * none. */
    bool select(const QString& what);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addPanels();
    void buildMenus();
    /** An action of the menu; the handler runs in the window's context. */
    template <class Handler>
    QAction* addAction(
        QMenu& menu, icons::Icon icon, const QString& text, const QKeySequence& keys, Handler handler);
    void buildFileMenu();
    void buildEditMenu();
    void buildInsertMenu();
    void buildFormatMenu();
    void buildViewMenu();
    void choosePageFont();
    void zoomPages(int steps);
    void buildCodexMenu();
    void buildHelpMenu();
    void restoreWindow();

    void newProject();
    void chooseAndOpen();
    void saveProject();
    bool saveProjectAs();
    void openSample();
    void reloadProject();
    /** True when nothing is unsaved, or the user saved or let go of it. */
    [[nodiscard]] bool settleUnsavedChanges();
    [[nodiscard]] bool saveOrTell(app::persistence::SaveExtent extent);
    void noteOpened();
    void rememberPages();
    /** The settings key under which something of the open project is remembered. */
    [[nodiscard]] QString projectKey(QStringView what) const;
    void fillRecentMenu();
    void refreshHistory();
    void refreshTitle();
    void openFirstDocument();
    void showCenter();
    void tell(const QString& title, const QString& text);

    DeskContext m_desk;
    QString m_samplePath;
    QStackedWidget* m_center;
    WorkArea* m_workArea;
    WelcomePage* m_welcome;
    QLabel* m_emptyHint;
    DockLayout* m_docks;
    StatusStrip* m_status;
    QMenu* m_recentMenu = nullptr;
    QAction* m_undoAction = nullptr;
    QAction* m_redoAction = nullptr;
    QAction* m_saveAction = nullptr;
    /** What makes sense only with a project open. */
    QList<QAction*> m_projectActions;
    manuscript::ManuscriptPanel* m_manuscript = nullptr;
    codex::CodexPanel* m_codex = nullptr;
};

} // namespace tw::desktop::shell
