#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

class QWidget;

namespace tw::desktop::shell {

/** What to do with a project that another start of the program was asked for. */
struct OpenRequestActions
{
    /** The window's own way of opening, with its questions about unsaved changes. */
    std::function<void(const QString& path)> openHere;
    /** Starts the program again with these arguments and lets it go; false when it does not start. */
    std::function<bool(const QStringList& arguments)> startProgram;
};

/**
 * Answers what other starts of the program ask of the running window: brings it to the front and asks where
 * the project should open. One question at a time, and none over a dialog that is open: requests wait until
 * the window is free. Main thread only; the window must outlive it.
 */
class OpenRequests final : public QObject
{
    Q_OBJECT

public:
    OpenRequests(QWidget& window, OpenRequestActions actions, QObject* parent = nullptr);

    /** An empty path asks only for the window. */
    void receive(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showWindow();
    void answerNext();
    void answer(const QString& path);
    void openInNewWindow(const QString& path);

    QWidget& m_window;
    OpenRequestActions m_actions;
    QStringList m_waiting;
    bool m_isAnswering = false;
};

} // namespace tw::desktop::shell
