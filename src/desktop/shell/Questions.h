#pragma once

#include <QList>
#include <QMessageBox>
#include <QString>

#include <optional>

namespace tw::desktop::shell {

/** One button of a question. Its text is a verb that says what happens. */
struct Answer
{
    QString text;
    QMessageBox::ButtonRole role = QMessageBox::AcceptRole;
};

struct Question
{
    QString title;
    QString text;
    /** The first one is what Enter chooses. */
    QList<Answer> answers;
    QMessageBox::Icon icon = QMessageBox::Question;
};

/** The place of the chosen answer, or none when the user cancelled: a button to cancel is always there. */
[[nodiscard]] std::optional<qsizetype> ask(QWidget* parent, const Question& question);

/** Says what went wrong, and waits until it was read. */
void tell(QWidget* parent, const QString& title, const QString& text);

} // namespace tw::desktop::shell
