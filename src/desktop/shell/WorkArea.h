#pragma once

#include "core/content/ContentKind.h"
#include "core/project/ProjectChanges.h"
#include "desktop/shell/DeskContext.h"
#include "desktop/shell/WorkPage.h"

#include <QSplitter>

#include <functional>
#include <map>
#include <set>
#include <vector>

class QTabWidget;

namespace tw::desktop::shell {

class UnsavedObjects;

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
    /** For pages that show an object, or all of a kind, in a way of their own. */
    void setViewFactory(const QString& view, PageFactory factory);
    /** The kinds of objects that have a page of their own. */
    [[nodiscard]] std::set<core::content::ContentKind> shownKinds() const;

    /** Shows a page in the active pane, making it when it is not there. */
    void openPage(const PageAddress& address);
    /** The same in the other pane, which is made when there is only one; in the only one while that is empty.
     */
    void openBeside(const PageAddress& address);
    /** Shows the present page in the other pane as well. */
    void splitCurrent();
    void closeCurrent();
    void closeAll();
    /** Steps through the tabs of the active pane: 1 forward, -1 back. */
    void stepTab(int step);

    void setTabsVisible(bool areVisible);

    [[nodiscard]] WorkPage* currentPage() const;
    [[nodiscard]] bool hasPages() const;
    /** The page in front of each pane that has one. */
    [[nodiscard]] std::vector<WorkPage*> shownPages() const;

    /** The open pages, for the next start: addresses by pane, and which is shown. */
    [[nodiscard]] QStringList openAddresses() const;
    void restoreAddresses(const QStringList& addresses);

signals:
    void currentPageChanged(tw::desktop::shell::WorkPage* page);

private:
    [[nodiscard]] QTabWidget* addPane();
    [[nodiscard]] QTabWidget* activePane() const;
    [[nodiscard]] const PageFactory* factoryFor(const PageAddress& address) const;
    [[nodiscard]] bool canShow(const core::ContentId& id) const;
    [[nodiscard]] WorkPage* makePage(const PageAddress& address, QTabWidget* pane);
    void closeTab(QTabWidget* pane, int index);
    void followFocus(QWidget* focused);
    void showPane(QTabWidget* pane);
    void followChanges(const core::project::ProjectChanges& changes);
    void refreshTab(WorkPage* page);
    void refreshTabs();
    [[nodiscard]] bool isUnsaved(const WorkPage& page) const;
    void announceCurrent();

    DeskContext m_desk;
    UnsavedObjects* m_unsaved;
    std::map<core::content::ContentKind, PageFactory> m_factories;
    std::map<QString, PageFactory> m_viewFactories;
    QTabWidget* m_activePane = nullptr;
    WorkPage* m_announcedPage = nullptr;
    bool m_areTabsVisible = true;
};

} // namespace tw::desktop::shell
