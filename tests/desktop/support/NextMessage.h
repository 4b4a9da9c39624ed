#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace tw::test {

/** Presses a button of the next message box; says what the box told. */
class NextMessage : public QObject
{
public:
    explicit NextMessage(const QString& button)
        : m_button(button)
    {
        connect(&m_timer, &QTimer::timeout, this, &NextMessage::look);
        m_timer.start(0);
    }

    QString text;

private:
    void look()
    {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        m_timer.stop();
        text = box->text();
        for (QAbstractButton* const candidate : box->buttons()) {
            if (candidate->text().remove(u'&') == m_button)
                candidate->click();
        }
    }

    QString m_button;
    QTimer m_timer;
};

} // namespace tw::test
