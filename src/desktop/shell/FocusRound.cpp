#include "desktop/shell/FocusRound.h"

#include "desktop/shell/DockLayout.h"
#include "desktop/shell/WorkArea.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>

#include <algorithm>
#include <functional>
#include <vector>

namespace tw::desktop::shell {

namespace {

struct Stop
{
    QWidget* area = nullptr;
    /** Where to go when nothing in the area had the keyboard before. */
    std::function<void()> enter;
};

bool canTakeFocus(const QWidget& widget)
{
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) &&
           !widget.focusProxy();
}

QWidget* firstControl(QWidget& area)
{
    QWidget* proxy = area.focusProxy();
    while (proxy && proxy->focusProxy())
        proxy = proxy->focusProxy();
    if (proxy && canTakeFocus(*proxy))
        return proxy;
    QWidget* widget = &area;
    do {
        if ((widget == &area || area.isAncestorOf(widget)) && canTakeFocus(*widget))
            return widget;
        widget = widget->nextInFocusChain();
    } while (widget != &area);
    return nullptr;
}

/** Nothing for an area that has no controls, or none that can be seen. */
void addArea(std::vector<Stop>& stops, QWidget* area)
{
    if (!area || !area->isVisible() || area->height() == 0)
        return;
    if (QWidget* const first = firstControl(*area))
        stops.push_back({area, [first] { first->setFocus(Qt::ShortcutFocusReason); }});
}

void addPage(std::vector<Stop>& stops, WorkPage& page)
{
    const QList<QWidget*> parts = page.parts();
    stops.push_back({parts.constFirst(), [&page] { page.takeFocus(); }});
    for (QWidget* const part : parts.sliced(1))
        addArea(stops, part);
}

void enter(const Stop& stop)
{
    QWidget* const left = stop.area->focusWidget();
    if (left && left->isVisible() && left->isEnabled())
        left->setFocus(Qt::ShortcutFocusReason);
    else
        stop.enter();
}

} // namespace

FocusRound::FocusRound(
    const QMainWindow& window, const DockLayout& docks, QWidget& center, const WorkArea& work)
    : m_window(window)
    , m_docks(docks)
    , m_center(center)
    , m_work(work)
{}

void FocusRound::step(FocusStep step) const
{
    std::vector<Stop> stops;
    addArea(stops, m_window.menuBar()->cornerWidget());
    for (QWidget* const area : m_docks.shownAreas()) {
        if (area != &m_center) {
            addArea(stops, area);
        } else if (m_work.isVisible()) {
            for (WorkPage* const page : m_work.shownPages())
                addPage(stops, *page);
        } else {
            addArea(stops, area);
        }
    }
    addArea(stops, m_window.statusBar());
    const QWidget* const focused = QApplication::focusWidget();
    const auto present = std::ranges::find_if(stops, [focused](const Stop& stop) {
        return focused && (stop.area == focused || stop.area->isAncestorOf(focused));
    });
    if (present == stops.end()) {
        if (m_work.isVisible() && m_work.currentPage())
            m_work.currentPage()->takeFocus();
        else if (!stops.empty())
            enter(stops.front());
        return;
    }
    const auto count = std::ssize(stops);
    const auto next = present - stops.begin() + (step == FocusStep::Next ? 1 : count - 1);
    enter(stops[static_cast<std::size_t>(next % count)]);
}

} // namespace tw::desktop::shell
