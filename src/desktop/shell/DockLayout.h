#pragma once

#include "desktop/icons/Icon.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <vector>

class QMainWindow;
class QMenu;
class QWidget;

namespace ads {
class CDockManager;
class CDockWidget;
} // namespace ads

namespace tw::desktop::icons {
class IconSet;
}
namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::shell {

/** Where a panel stands until the user moves it; panels of one place share a tab group. */
enum class DockPlace
{
    Left,
    Right,
    Bottom,
};

/** A panel of the window. */
struct PanelSpec
{
    /** Stable: the saved layout and the command line name the panel by it. */
    QString objectName;
    QString title;
    icons::Icon icon;
    DockPlace place = DockPlace::Left;
    /** Others wait in the Windows menu until somebody wants them. */
    bool isShownAtFirst = true;
};

/** Which panels stand in their own places, by object name; all others wait in the Windows menu. */
struct DockArrangement
{
    QStringList shown;
    /** Those whose tabs are in front. */
    QStringList inFront;
};

/**
 * The docks around the work area: their places, and their entries in the Windows menu, each exactly once.
 * Owned by the main window.
 */
class DockLayout final : public QObject
{
    Q_OBJECT

public:
    /** Makes the dock manager the window's central widget, with `center` in its middle. */
    DockLayout(
        QMainWindow& window, QWidget* center, theme::ThemeManager& themes, const icons::IconSet& icons);

    /** Adds a panel; the dock owns the widget. Call before anything is arranged. */
    void addPanel(const PanelSpec& spec, QWidget* panel);

    /** Entries for every panel by place, each place a group. */
    void fillMenu(QMenu& menu);

    /** Shows a panel and brings it to the front; false when there is none of that name. */
    bool showPanel(const QString& objectName);
    [[nodiscard]] QStringList panelNames() const;
    /** The panels that can be seen and the centre, from the top down and along the lines of reading. */
    [[nodiscard]] std::vector<QWidget*> shownAreas() const;

    /** Puts all panels away, and brings them back as they were. */
    void setHidden(bool isHidden);

    /** What is shown where nobody asked for anything else: the first panel of each place in front. */
    [[nodiscard]] DockArrangement usualArrangement() const;
    /** Puts every panel back to its own place, in its usual size. Names of panels that are not there do not
     * matter. */
    void arrange(const DockArrangement& arrangement);

    /** Places and sizes of everything, as bytes to come back to. Of panels put away: where they were. */
    [[nodiscard]] QByteArray state() const;
    /** False, with nothing changed, for bytes that fit no more, or none. Panels must have been arranged
     * before. */
    bool setState(const QByteArray& state);

signals:
    /** Panels are about to be shown in other places; whoever put them away lets go of them. */
    void aboutToArrange();

private:
    struct Panel
    {
        PanelSpec spec;
        ads::CDockWidget* dock;
    };

    void place(const DockArrangement& arrangement);
    void resizeAreas();
    void applyTheme();

    theme::ThemeManager& m_themes;
    const icons::IconSet& m_icons;
    QMainWindow& m_window;
    ads::CDockWidget* m_central = nullptr;
    ads::CDockManager* m_manager;
    std::vector<Panel> m_panels;
    /** The layout to come back to while panels are put away. */
    QByteArray m_shownState;
};

} // namespace tw::desktop::shell
