#pragma once

#include <QObject>
#include <QString>

class QAction;
class QActionGroup;
class QMenu;
class QSettings;

namespace tw::desktop::icons {
class IconSet;
}

namespace tw::desktop::shell {

class DockLayout;

/**
 * The arrangements of the panels that go by a name: Write, Plan, World, Play. Each begins as it is built in
 * and stays as the user leaves it: another one that is chosen takes its place, and choosing the first again
 * brings it back as it was. The parts must outlive it.
 *
 * The present state is kept under "window/dockState", its name under "window/layout", and the others under
 * "window/layouts/" and their names.
 */
class NamedLayouts final : public QObject
{
    Q_OBJECT

public:
    NamedLayouts(DockLayout& docks, QSettings& settings, const icons::IconSet& icons, QObject* parent);

    /** Adds a menu of the layouts, and the command that brings the present one back. */
    void fillMenu(QMenu& menu);

    /** The name of the present one: "Write". */
    [[nodiscard]] const QString& current() const { return m_current; }
    /** By name; an unknown one is Write. */
    void choose(const QString& name);
    /** The present layout as it is built in. */
    void reset();

    /** Takes up what the last run left, or begins with Write. */
    void restore();
    void save() const;

private:
    void arrange(const QString& name);

    DockLayout& m_docks;
    QSettings& m_settings;
    const icons::IconSet& m_icons;
    QActionGroup* m_actions;
    QString m_current;
};

} // namespace tw::desktop::shell
