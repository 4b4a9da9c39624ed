#include "desktop/shell/DockLayout.h"

#include "desktop/icons/DockingIcons.h"
#include "desktop/icons/IconSet.h"
#include "desktop/theme/StyleSheets.h"
#include "desktop/theme/ThemeManager.h"

#include <DockAreaWidget.h>
#include <DockManager.h>
#include <DockSplitter.h>
#include <DockWidget.h>
#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QSettings>

#include <array>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Raised when panels change so much that an old layout would lose some of them. */
constexpr int layoutVersion = 1;

constexpr std::array allPlaces{DockPlace::Left, DockPlace::Right, DockPlace::Bottom};

ads::DockWidgetArea areaOf(DockPlace place)
{
    switch (place) {
    case DockPlace::Left:
        return ads::LeftDockWidgetArea;
    case DockPlace::Right:
        return ads::RightDockWidgetArea;
    case DockPlace::Bottom:
        return ads::BottomDockWidgetArea;
    }
    return ads::LeftDockWidgetArea;
}

void configureDocking()
{
    ads::CDockManager::setConfigFlags(
        ads::CDockManager::OpaqueSplitterResize | ads::CDockManager::XmlCompressionEnabled |
        ads::CDockManager::DragPreviewShowsContentPixmap | ads::CDockManager::DockAreaHasTabsMenuButton |
        ads::CDockManager::DockAreaDynamicTabsMenuButtonVisibility |
        ads::CDockManager::FloatingContainerHasWidgetTitle |
        ads::CDockManager::FloatingContainerHasWidgetIcon |
        ads::CDockManager::HideSingleCentralWidgetTitleBar | ads::CDockManager::FocusHighlighting |
        ads::CDockManager::DockAreaHasCloseButton | ads::CDockManager::DockAreaCloseButtonClosesTab |
        ads::CDockManager::DockAreaHideDisabledButtons);
}

} // namespace

DockLayout::DockLayout(
    QMainWindow& window, QWidget* center, theme::ThemeManager& themes, const icons::IconSet& icons)
    : QObject(&window)
    , m_themes(themes)
    , m_icons(icons)
    , m_window(window)
{
    configureDocking();
    icons::registerDockingIcons(icons);
    m_manager = new ads::CDockManager(&window);
    auto* const central = new ads::CDockWidget(u"center"_s);
    central->setObjectName(u"center"_s);
    // It is its content that is used; nobody stops at the frame.
    central->setFocusPolicy(Qt::NoFocus);
    central->setWidget(center, ads::CDockWidget::ForceNoScrollArea);
    central->setFeature(ads::CDockWidget::NoTab, true);
    m_manager->setCentralWidget(central);
    applyTheme();
    connect(&themes, &theme::ThemeManager::themeChanged, this, &DockLayout::applyTheme);
}

void DockLayout::applyTheme()
{
    m_manager->setStyleSheet(theme::dockingStyleSheet(m_themes.theme()));
}

void DockLayout::addPanel(const PanelSpec& spec, QWidget* panel)
{
    auto* const dock = new ads::CDockWidget(spec.title);
    dock->setObjectName(spec.objectName);
    dock->setAccessibleName(spec.title);
    dock->toggleViewAction()->setObjectName(u"windows."_s + spec.objectName);
    dock->setWidget(panel, ads::CDockWidget::ForceNoScrollArea);
    dock->setMinimumSizeHintMode(ads::CDockWidget::MinimumSizeHintFromContent);
    dock->setIcon(m_icons.icon(spec.icon));
    dock->toggleViewAction()->setIcon(m_icons.icon(spec.icon));
    m_panels.push_back({spec, dock});
}

void DockLayout::fillMenu(QMenu& menu)
{
    for (const DockPlace place : allPlaces) {
        bool isEmpty = true;
        for (const Panel& panel : m_panels) {
            if (panel.spec.place != place)
                continue;
            menu.addAction(panel.dock->toggleViewAction());
            isEmpty = false;
        }
        if (!isEmpty)
            menu.addSeparator();
    }
    auto* const resetAction = menu.addAction(m_icons.icon(icons::Icon::Layout), tr("Reset Layout"));
    resetAction->setObjectName(u"windows.resetLayout"_s);
    connect(resetAction, &QAction::triggered, this, &DockLayout::reset);
}

bool DockLayout::showPanel(const QString& objectName)
{
    for (const Panel& panel : m_panels) {
        if (panel.spec.objectName != objectName)
            continue;
        panel.dock->toggleView(true);
        panel.dock->setAsCurrentTab();
        panel.dock->widget()->setFocus(Qt::ShortcutFocusReason);
        return true;
    }
    return false;
}

QStringList DockLayout::panelNames() const
{
    QStringList names;
    for (const Panel& panel : m_panels)
        names.append(panel.spec.objectName);
    return names;
}

void DockLayout::placeAll()
{
    // One tab group a place, the first panel of each in front.
    for (const DockPlace place : allPlaces) {
        ads::CDockAreaWidget* group = nullptr;
        ads::CDockWidget* first = nullptr;
        for (const Panel& panel : m_panels) {
            if (panel.spec.place != place)
                continue;
            group = group ? m_manager->addDockWidgetTabToArea(panel.dock, group)
                          : m_manager->addDockWidget(areaOf(place), panel.dock);
            // A dock that was closed before would leave its new group on the screen, empty.
            panel.dock->toggleView(true);
            if (!panel.spec.isShownAtFirst)
                panel.dock->toggleView(false);
            else if (!first)
                first = panel.dock;
        }
        if (first)
            first->setAsCurrentTab();
    }
}

void DockLayout::reset()
{
    placeAll();
    // Navigators and inspector keep their size, the work gets the rest.
    const int unit = m_window.fontMetrics().averageCharWidth();
    const QList<ads::CDockSplitter*> splitters = m_manager->findChildren<ads::CDockSplitter*>();
    for (ads::CDockSplitter* const splitter : splitters) {
        if (splitter->orientation() != Qt::Horizontal || splitter->count() != 3)
            continue;
        // Wide enough for the names of three navigators in their tabs.
        const int total = std::max(splitter->width(), m_window.width());
        // With large text the page still gets nearly half of the window.
        const int left = std::min(44 * unit, total * 26 / 100);
        const int right = std::min(38 * unit, total * 28 / 100);
        splitter->setSizes({left, std::max(total - left - right, right), right});
    }
}

void DockLayout::restore(const QSettings& settings)
{
    placeAll();
    const QByteArray state = settings.value("window/dockState").toByteArray();
    if (state.isEmpty() || !m_manager->restoreState(state, layoutVersion))
        reset();
}

void DockLayout::setHidden(bool isHidden)
{
    if (isHidden == !m_shownState.isEmpty())
        return;
    if (!isHidden) {
        m_manager->restoreState(std::exchange(m_shownState, {}), layoutVersion);
        return;
    }
    m_shownState = m_manager->saveState(layoutVersion);
    for (const Panel& panel : m_panels)
        panel.dock->toggleView(false);
}

void DockLayout::save(QSettings& settings) const
{
    settings.setValue(
        "window/dockState", m_shownState.isEmpty() ? m_manager->saveState(layoutVersion) : m_shownState);
}

} // namespace tw::desktop::shell
