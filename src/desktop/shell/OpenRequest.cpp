#include "desktop/shell/OpenRequest.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QWidget>
#include <QWindow>

namespace tw::desktop::shell {

namespace {

/** Nobody asks for more than this by hand; a program gone wild shall not fill the memory. */
constexpr qsizetype mostWaiting = 16;

/** What people call the project: a folder's whole name, a file's without its extension. */
QString projectTitle(const QString& path)
{
    const QFileInfo info(QDir::cleanPath(path));
    return info.isDir() ? info.fileName() : info.completeBaseName();
}

void warn(QWidget& window, const QString& text)
{
    QMessageBox message(
        QMessageBox::Warning, OpenRequests::tr("Open Project"), text, QMessageBox::NoButton, &window);
    // A path may look like markup.
    message.setTextFormat(Qt::PlainText);
    message.addButton(OpenRequests::tr("Close"), QMessageBox::AcceptRole);
    message.exec();
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
        warn(m_window, tr("The project could not be found: %1").arg(QDir::toNativeSeparators(path)));
        return;
    }
    QMessageBox question(
        QMessageBox::Question, tr("Open Project"),
        tr("Vellory is already open. Where should “%1” open?").arg(projectTitle(path)), QMessageBox::Cancel,
        &m_window);
    question.setTextFormat(Qt::PlainText);
    QPushButton* const here = question.addButton(tr("This Window"), QMessageBox::AcceptRole);
    const QPushButton* const newWindow = question.addButton(tr("New Window"), QMessageBox::ActionRole);
    question.setDefaultButton(here);
    question.exec();
    if (question.clickedButton() == here)
        m_actions.openHere(path);
    else if (question.clickedButton() == newWindow)
        openInNewWindow(path);
}

void OpenRequests::openInNewWindow(const QString& path)
{
    if (m_actions.startProgram({QStringLiteral("--new-instance"), path}))
        return;
    warn(
        m_window,
        tr("Another window could not be started for %1. Open the project in this window instead, or start "
           "Vellory once more yourself.")
            .arg(QDir::toNativeSeparators(path)));
}

} // namespace tw::desktop::shell
