#pragma once

#include "desktop/shell/RecentProjects.h"

#include <QWidget>

#include <vector>

class QVBoxLayout;

namespace tw::desktop::icons {
class IconSet;
}

namespace tw::desktop::shell {

class LinkButton;

/** What the window shows while no project is open, and once at the first start: ways to begin. */
class WelcomePage final : public QWidget
{
    Q_OBJECT

public:
    /** Without a sample that entry is left out. */
    WelcomePage(const icons::IconSet& icons, bool hasSample, QWidget* parent);

    void setRecent(const std::vector<RecentProject>& projects);
    /** The project to go back to; empty while none is open. */
    void setOpenProject(const QString& name);

signals:
    void backRequested();
    void sampleRequested();
    void newRequested();
    void openRequested();
    void openFolderRequested();
    void recentRequested(const QString& path);
    /** The project is to leave the list. */
    void forgetRequested(const QString& path);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fitColumn();
    void addRecent(const RecentProject& project);

    const icons::IconSet& m_icons;
    QWidget* m_column;
    LinkButton* m_back = nullptr;
    QWidget* m_recent;
    QVBoxLayout* m_recentLayout;
};

} // namespace tw::desktop::shell
