#pragma once

#include "core/content/ContentKind.h"
#include "core/project/ProjectChanges.h"
#include "desktop/shell/DeskContext.h"
#include "desktop/shell/WorkPage.h"

#include <QSplitter>

#include <functional>
#include <map>

class QTabWidget;

namespace tw::desktop::shell {

/**
 * The centre of the window: pages in tabs, side by side in at most two panes. Owns the pages; a page closes
 * by itself when its object leaves the project.
 */
class WorkArea final : public QSplitter
{
    Q_OBJECT

public:
    /** Makes the page of an object of one kind. The parent owns it. */
    using PageFactory = std::function<WorkPage*(const core::ContentId& id, QWidget* parent)>;

    WorkArea(const DeskContext& desk, QWidget* parent);
    ~WorkArea() override;

    void setFactory(core::content::ContentKind kind, PageFactory factory);

    /** Shows the object's page in the active pane, making it when it is not there. */
    void openPage(const core::ContentId& id);
    /** Shows the present page in the other pane as well. */
    void splitCurrent();
    void closeCurrent();
    void closeAll();
    /** Steps through the tabs of the active pane: 1 forward, -1 back. */
    void stepTab(int step);

    void setTabsVisible(bool areVisible);

    [[nodiscard]] WorkPage* currentPage() const;
    [[nodiscard]] bool hasPages() const;

    /** The open pages, for the next start: object ids by pane, and which is shown. */
    [[nodiscard]] QStringList openIds() const;
    void restoreIds(const QStringList& ids);

signals:
    void currentPageChanged(tw::desktop::shell::WorkPage* page);

private:
    [[nodiscard]] QTabWidget* addPane();
    [[nodiscard]] QTabWidget* activePane() const;
    [[nodiscard]] WorkPage* makePage(const core::ContentId& id, QTabWidget* pane);
    void closeTab(QTabWidget* pane, int index);
    void followFocus(QWidget* focused);
    void showPane(QTabWidget* pane);
    void followChanges(const core::project::ProjectChanges& changes);
    void refreshTab(WorkPage* page);
    void announceCurrent();

    DeskContext m_desk;
    std::map<core::content::ContentKind, PageFactory> m_factories;
    QTabWidget* m_activePane = nullptr;
    WorkPage* m_announcedPage = nullptr;
    bool m_areTabsVisible = true;
};

} // namespace tw::desktop::shell
