// Works on the dialog that comes up next.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>

namespace tw::test {

/** Runs `work` once on the next modal dialog of the class, which must end it. */
template <class Dialog>
class NextDialog
{
public:
    explicit NextDialog(std::function<void(Dialog& dialog)> work)
        : m_work(std::move(work))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(0);
    }

    [[nodiscard]] bool wasSeen() const { return m_wasSeen; }

private:
    void look()
    {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        m_timer.stop();
        m_wasSeen = true;
        m_work(*dialog);
    }

    std::function<void(Dialog& dialog)> m_work;
    QTimer m_timer;
    bool m_wasSeen = false;
};

} // namespace tw::test
