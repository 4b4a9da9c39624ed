#include "desktop/inspector/NoteEdit.h"

#include <QKeyEvent>

namespace tw::desktop::inspector {

NoteEdit::NoteEdit(int visibleLines, QWidget* parent)
    : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setFixedHeight(fontMetrics().lineSpacing() * visibleLines + 16);
}

void NoteEdit::showText(const QString& text)
{
    m_shown = text;
    if (toPlainText() != text)
        setPlainText(text);
}

void NoteEdit::commit()
{
    const QString text = toPlainText();
    if (text == m_shown)
        return;
    m_shown = text;
    emit textCommitted(text);
}

bool NoteEdit::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto* const key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return false;
        }
    }
    return QPlainTextEdit::event(event);
}

void NoteEdit::focusOutEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusOutEvent(event);
    commit();
}

} // namespace tw::desktop::inspector
