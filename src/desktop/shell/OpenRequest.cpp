#include "desktop/shell/OpenRequest.h"

#include "desktop/shell/Questions.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QWidget>
#include <QWindow>

namespace tw::desktop::shell {

namespace {

/** Nobody asks for more than this by hand; a program gone wild shall not fill the memory. */
constexpr qsizetype mostWaiting = 16;

/** The answers, in the order in which they are offered. */
constexpr qsizetype thisWindow = 0;
constexpr qsizetype newWindow = 1;

/** What people call the project: a folder's whole name, a file's without its extension. */
QString projectTitle(const QString& path)
{
    const QFileInfo info(QDir::cleanPath(path));
    return info.isDir() ? info.fileName() : info.completeBaseName();
}

} // namespace

OpenRequests::OpenRequests(QWidget& window, OpenRequestActions actions, QObject* parent)
    : QObject(parent)
    , m_window(window)
    , m_actions(std::move(actions))
{}

void OpenRequests::receive(const QString& path)
{
    showWindow();
    if (path.isEmpty() || m_waiting.contains(path) || m_waiting.size() == mostWaiting)
        return;
    m_waiting.append(path);
    answerNext();
}

bool OpenRequests::eventFilter(QObject* watched, QEvent* event)
{
    // The event comes while the dialog is still closing; what follows from its answer goes first.
    if (event->type() == QEvent::WindowUnblocked)
        QMetaObject::invokeMethod(this, &OpenRequests::answerNext, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void OpenRequests::showWindow()
{
    m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
    // Only the window below the widget hears of blocking, and there is none before it is shown.
    m_window.windowHandle()->installEventFilter(this);
}

void OpenRequests::answerNext()
{
    if (m_isAnswering || m_waiting.isEmpty() || QApplication::activeModalWidget())
        return;
    const QScopedValueRollback answering(m_isAnswering, true);
    while (!m_waiting.isEmpty())
        answer(m_waiting.takeFirst());
}

void OpenRequests::answer(const QString& path)
{
    if (!QFileInfo::exists(path)) {
        tell(
            &m_window, tr("Open Project"),
            tr("The project could not be found: %1").arg(QDir::toNativeSeparators(path)));
        return;
    }
    const auto chosen =
        ask(&m_window, {tr("Open Project"),
                        tr("Vellory is already open. Where should “%1” open?").arg(projectTitle(path)),
                        {{tr("This Window")}, {tr("New Window"), QMessageBox::ActionRole}}});
    if (chosen == thisWindow)
        m_actions.openHere(path);
    else if (chosen == newWindow)
        openInNewWindow(path);
}

void OpenRequests::openInNewWindow(const QString& path)
{
    if (m_actions.startProgram({QStringLiteral("--new-instance"), path}))
        return;
    tell(
        &m_window, tr("Open Project"),
        tr("Another window could not be started for %1. Open the project in this window instead, or start "
           "Vellory once more yourself.")
            .arg(QDir::toNativeSeparators(path)));
}

} // namespace tw::desktop::shell
