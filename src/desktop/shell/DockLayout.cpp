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
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <array>
#include <utility>

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

/** Panels that move may take the keyboard, also a moment later; whoever has it gets it back. */
void keepFocus(QObject& context)
{
    QTimer::singleShot(0, &context, [focused = QPointer(QApplication::focusWidget())] {
        if (focused && focused->isVisible())
            focused->setFocus(Qt::OtherFocusReason);
    });
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
    m_central = new ads::CDockWidget(u"center"_s);
    m_central->setObjectName(u"center"_s);
    // It is its content that is used; nobody stops at the frame.
    m_central->setFocusPolicy(Qt::NoFocus);
    m_central->setWidget(center, ads::CDockWidget::ForceNoScrollArea);
    m_central->setFeature(ads::CDockWidget::NoTab, true);
    m_manager->setCentralWidget(m_central);
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
    // As with the centre.
    dock->setFocusPolicy(Qt::NoFocus);
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

std::vector<QWidget*> DockLayout::shownAreas() const
{
    std::vector<const ads::CDockWidget*> docks{m_central};
    for (const Panel& panel : m_panels) {
        if (panel.dock->widget()->isVisible())
            docks.push_back(panel.dock);
    }
    const bool isMirrored = m_window.layoutDirection() == Qt::RightToLeft;
    const auto place = [isMirrored](const ads::CDockWidget* dock) {
        const QPoint corner = dock->dockAreaWidget()->mapToGlobal(QPoint());
        return std::pair(corner.y(), isMirrored ? -corner.x() : corner.x());
    };
    std::ranges::sort(docks, {}, place);
    std::vector<QWidget*> areas;
    for (const ads::CDockWidget* const dock : docks)
        areas.push_back(dock->widget());
    return areas;
}

DockArrangement DockLayout::usualArrangement() const
{
    DockArrangement usual;
    for (const DockPlace place : allPlaces) {
        bool isFirst = true;
        for (const Panel& panel : m_panels) {
            if (panel.spec.place != place || !panel.spec.isShownAtFirst)
                continue;
            usual.shown.append(panel.spec.objectName);
            if (std::exchange(isFirst, false))
                usual.inFront.append(panel.spec.objectName);
        }
    }
    return usual;
}

void DockLayout::arrange(const DockArrangement& arrangement)
{
    emit aboutToArrange();
    keepFocus(*this);
    place(arrangement);
    resizeAreas();
}

void DockLayout::place(const DockArrangement& arrangement)
{
    // One tab group a place.
    for (const DockPlace place : allPlaces) {
        ads::CDockAreaWidget* group = nullptr;
        for (const Panel& panel : m_panels) {
            if (panel.spec.place != place)
                continue;
            group = group ? m_manager->addDockWidgetTabToArea(panel.dock, group)
                          : m_manager->addDockWidget(areaOf(place), panel.dock);
            // A dock that was closed before would leave its new group on the screen, empty.
            panel.dock->toggleView(true);
            if (!arrangement.shown.contains(panel.spec.objectName))
                panel.dock->toggleView(false);
        }
    }
    for (const Panel& panel : m_panels) {
        if (arrangement.inFront.contains(panel.spec.objectName))
            panel.dock->setAsCurrentTab();
    }
}

void DockLayout::resizeAreas()
{
    // Navigators and inspector keep their size, the work gets the rest.
    const int unit = m_window.fontMetrics().averageCharWidth();
    const QList<ads::CDockSplitter*> splitters = m_manager->findChildren<ads::CDockSplitter*>();
    for (ads::CDockSplitter* const splitter : splitters) {
        if (splitter->orientation() == Qt::Horizontal && splitter->count() == 3) {
            // Wide enough for the names of three navigators in their tabs.
            const int total = std::max(splitter->width(), m_window.width());
            // With large text the page still gets nearly half of the window.
            const int left = std::min(44 * unit, total * 26 / 100);
            const int right = std::min(38 * unit, total * 28 / 100);
            splitter->setSizes({left, std::max(total - left - right, right), right});
        } else if (splitter->orientation() == Qt::Vertical && splitter->count() == 2) {
            const int total = std::max(splitter->height(), m_window.height());
            const int bottom = total * 24 / 100;
            splitter->setSizes({total - bottom, bottom});
        }
    }
}

QByteArray DockLayout::state() const
{
    return m_shownState.isEmpty() ? m_manager->saveState(layoutVersion) : m_shownState;
}

bool DockLayout::setState(const QByteArray& state)
{
    if (state.isEmpty())
        return false;
    emit aboutToArrange();
    keepFocus(*this);
    return m_manager->restoreState(state, layoutVersion);
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

} // namespace tw::desktop::shell
