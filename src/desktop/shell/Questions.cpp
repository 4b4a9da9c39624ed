#include "desktop/shell/Questions.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QPushButton>

namespace tw::desktop::shell {

std::optional<qsizetype> ask(QWidget* parent, const Question& question)
{
    QMessageBox box(question.icon, question.title, question.text, QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    QList<const QAbstractButton*> buttons;
    for (const Answer& answer : question.answers)
        buttons.append(box.addButton(answer.text, answer.role));
    box.setDefaultButton(qobject_cast<QPushButton*>(box.buttons().constFirst()));
    box.addButton(QCoreApplication::translate("Questions", "Cancel"), QMessageBox::RejectRole);
    box.exec();
    const qsizetype chosen = buttons.indexOf(box.clickedButton());
    return chosen < 0 ? std::nullopt : std::optional(chosen);
}

void tell(QWidget* parent, const QString& title, const QString& text)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    box.addButton(QCoreApplication::translate("Questions", "Close"), QMessageBox::AcceptRole);
    box.exec();
}

} // namespace tw::desktop::shell
