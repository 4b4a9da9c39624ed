#pragma once

#include "desktop/icons/Icon.h"

#include <QObject>
#include <QString>

#include <vector>

class QMainWindow;
class QMenu;
class QSettings;

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

/**
 * The docks around the work area: their default places, the saved layout, and their entries in the Windows
 * menu, each exactly once. Owned by the main window.
 */
class DockLayout final : public QObject
{
    Q_OBJECT

public:
    /** Makes the dock manager the window's central widget, with `center` in its middle. */
    DockLayout(
        QMainWindow& window, QWidget* center, theme::ThemeManager& themes, const icons::IconSet& icons);

    /** Adds a panel; the dock owns the widget. Call before restore(). */
    void addPanel(const PanelSpec& spec, QWidget* panel);

    /** Entries for every panel by place, then the layout commands. */
    void fillMenu(QMenu& menu);

    /** Shows a panel and brings it to the front; false when there is none of that name. */
    bool showPanel(const QString& objectName);
    [[nodiscard]] QStringList panelNames() const;

    /** Puts all panels away, and brings them back as they were. */
    void setHidden(bool isHidden);

    void reset();
    void restore(const QSettings& settings);
    void save(QSettings& settings) const;

private:
    struct Panel
    {
        PanelSpec spec;
        ads::CDockWidget* dock;
    };

    void placeAll();
    void applyTheme();

    theme::ThemeManager& m_themes;
    const icons::IconSet& m_icons;
    QMainWindow& m_window;
    ads::CDockManager* m_manager;
    std::vector<Panel> m_panels;
    /** The layout to come back to while panels are put away. */
    QByteArray m_shownState;
};

} // namespace tw::desktop::shell
