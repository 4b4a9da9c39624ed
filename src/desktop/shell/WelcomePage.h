#pragma once

#include <QWidget>

class QVBoxLayout;

namespace tw::desktop::icons {
class IconSet;
}

namespace tw::desktop::shell {

/** What the window shows while no project is open: ways to begin. */
class WelcomePage final : public QWidget
{
    Q_OBJECT

public:
    /** Without a sample that entry is left out. */
    WelcomePage(const icons::IconSet& icons, bool hasSample, QWidget* parent);

    void setRecent(const QStringList& paths);

signals:
    void sampleRequested();
    void newRequested();
    void openRequested();
    void recentRequested(const QString& path);

private:
    const icons::IconSet& m_icons;
    QWidget* m_recent;
    QVBoxLayout* m_recentLayout;
};

} // namespace tw::desktop::shell
