#include "desktop/fields/GrowingTextEdit.h"

#include "desktop/fields/LongWords.h"

#include <QAbstractTextDocumentLayout>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace tw::desktop::fields {

namespace {

constexpr int smallestHeight = 28;
constexpr qreal innerMargin = 2;

} // namespace

GrowingTextEdit::GrowingTextEdit(QWidget* parent)
    : QTextEdit(parent)
{
    setAcceptRichText(false);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setLineWrapMode(WidgetWidth);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    breakLongWordsAnywhere(*document());
    document()->setDocumentMargin(innerMargin);
    connect(
        document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
        &GrowingTextEdit::fitHeight);
    fitHeight();
}

QString GrowingTextEdit::text() const
{
    // toPlainText() would turn no-break spaces into common ones.
    QString text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return text;
}

void GrowingTextEdit::setText(const QString& text)
{
    const int position = textCursor().position();
    setPlainText(text);
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::min(position, document()->characterCount() - 1));
    setTextCursor(cursor);
}

void GrowingTextEdit::setLeastLines(int lines)
{
    m_leastLines = lines;
    fitHeight();
}

void GrowingTextEdit::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && event->modifiers().testFlag(Qt::ControlModifier)) {
        emit left();
        return;
    }
    QTextEdit::keyPressEvent(event);
}

void GrowingTextEdit::focusOutEvent(QFocusEvent* event)
{
    QTextEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason)
        emit left();
}

void GrowingTextEdit::resizeEvent(QResizeEvent* event)
{
    {
        const QScopedValueRollback guard(m_isResizing, true);
        QTextEdit::resizeEvent(event);
    }
    // Queued: a height asked for while the layout is at work would go unheard.
    QMetaObject::invokeMethod(this, &GrowingTextEdit::fitHeight, Qt::QueuedConnection);
}

void GrowingTextEdit::wheelEvent(QWheelEvent* event)
{
    // The page around it scrolls.
    event->ignore();
}

void GrowingTextEdit::fitHeight()
{
    if (m_isResizing)
        return;
    const int lines = fontMetrics().lineSpacing() * m_leastLines;
    const int text = std::max(lines, static_cast<int>(std::ceil(document()->size().height())));
    setFixedHeight(std::max(smallestHeight, text + 2 * frameWidth()));
}

} // namespace tw::desktop::fields
