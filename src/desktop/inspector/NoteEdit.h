#pragma once

#include <QPlainTextEdit>

namespace tw::desktop::inspector {

/** A few lines of plain text that are handed over when the writer leaves them. Undo is the project's. */
class NoteEdit final : public QPlainTextEdit
{
    Q_OBJECT

public:
    NoteEdit(int visibleLines, QWidget* parent);

    /** Shows a text that is not the writer's; leaves cursor and selection alone when it is there already. */
    void showText(const QString& text);
    /** Hands the text over now when it is another one than what was shown. */
    void commit();

signals:
    void textCommitted(const QString& text);

protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QString m_shown;
};

} // namespace tw::desktop::inspector
