// Answers the message box that comes up next.
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <functional>
#include <memory>

namespace tw::test {

/** Presses a button of the next message box; says what the box told. */
class NextMessage : public QObject
{
public:
    /** `then` is asked, as the button is pressed, for what answers the message after this one. */
    explicit NextMessage(const QString& button, std::function<NextMessage*()> then = {})
        : m_button(button)
        , m_then(std::move(then))
    {
        connect(&m_timer, &QTimer::timeout, this, &NextMessage::look);
        m_timer.start(0);
    }

    QString title;
    QString text;
    std::unique_ptr<NextMessage> next;

private:
    void look()
    {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        m_timer.stop();
        title = box->windowTitle();
        text = box->text();
        if (m_then)
            next.reset(m_then());
        for (QAbstractButton* const candidate : box->buttons()) {
            if (candidate->text().remove(u'&') == m_button)
                candidate->click();
        }
    }

    QString m_button;
    std::function<NextMessage*()> m_then;
    QTimer m_timer;
};

} // namespace tw::test
