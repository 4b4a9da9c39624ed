#include "desktop/shell/FocusMode.h"

#include "desktop/manuscript/DocumentPage.h"
#include "desktop/shell/DockLayout.h"
#include "desktop/shell/WorkArea.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>

namespace tw::desktop::shell {

FocusMode::FocusMode(QMainWindow& window, DockLayout& docks, WorkArea& work)
    : QObject(&window)
    , m_window(window)
    , m_docks(docks)
    , m_work(work)
    , m_leave(new QAction(this))
{
    m_leave->setShortcut(QKeySequence(Qt::Key_Escape));
    m_leave->setEnabled(false);
    window.addAction(m_leave);
    connect(m_leave, &QAction::triggered, this, [this] { setOn(false); });
    connect(&docks, &DockLayout::aboutToArrange, this, [this] { setOn(false); });
}

void FocusMode::setOn(bool isOn)
{
    if (isOn == m_isOn || (isOn && !m_page))
        return;
    m_isOn = isOn;
    m_leave->setEnabled(isOn);
    m_docks.setHidden(isOn);
    m_work.setTabsVisible(!isOn);
    m_window.statusBar()->setVisible(!isOn);
    // A hidden menu bar would take the shortcuts of its menus along.
    m_window.menuBar()->setMaximumHeight(isOn ? 0 : QWIDGETSIZE_MAX);
    dress(isOn);
    emit changed(isOn);
    // Panels that come back may take the keyboard while they are shown; the writer was in the text.
    if (m_page)
        QTimer::singleShot(0, m_page, &manuscript::DocumentPage::takeFocus);
}

void FocusMode::setPage(manuscript::DocumentPage* page)
{
    if (page == m_page)
        return;
    dress(false);
    m_page = page;
    if (m_isOn && !page)
        setOn(false);
    dress(m_isOn);
}

void FocusMode::dress(bool isFocused)
{
    if (!m_page)
        return;
    m_page->setFocusMode(isFocused);
}

} // namespace tw::desktop::shell
