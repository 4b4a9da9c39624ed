// What the keys do where a page of styled text differs from a plain one.
#include "desktop/manuscript/rich/RichPage.h"

#include "desktop/manuscript/rich/ParagraphChange.h"

#include <QKeyEvent>
#include <QTextBlock>
#include <QTextTable>
#include <QTimer>

namespace tw::desktop::manuscript::rich {

using markup::BlockKind;
using markup::RunKind;
using markup::RunStyle;

namespace {

/** "9." after "8.", "b)" stays. */
QString followingMarker(const QString& marker)
{
    qsizetype digits = 0;
    while (digits < marker.size() && marker[digits].isDigit())
        ++digits;
    bool isNumber = false;
    const qlonglong number = QStringView(marker).first(digits).toLongLong(&isNumber);
    return isNumber ? QString::number(number + 1) + marker.mid(digits) : marker;
}

/** What Enter gives at the end of such a block. */
BlockShape followingShape(const BlockShape& shape, bool isAtEnd)
{
    BlockShape next = shape;
    next.attributes.pageBreak = false;
    switch (shape.kind) {
    case BlockKind::Heading:
        return isAtEnd ? BlockShape() : next;
    case BlockKind::Rule:
    case BlockKind::FootnoteDefinition:
        return {};
    case BlockKind::NumberedItem:
        next.marker = followingMarker(shape.marker);
        return next;
    default:
        return next;
    }
}

/** One step out of whatever the block is; the same shape when it is a plain paragraph. */
BlockShape stepOut(BlockShape shape)
{
    if (isItem(shape.kind) && shape.level > 0) {
        --shape.level;
        return shape;
    }
    if (shape.kind == BlockKind::Quotation && shape.level > 1) {
        --shape.level;
        return shape;
    }
    if (shape.kind == BlockKind::Paragraph && shape.attributes.indent > 0) {
        --shape.attributes.indent;
        return shape;
    }
    BlockShape paragraph;
    paragraph.attributes = shape.attributes;
    return paragraph;
}

} // namespace

void RichPage::keyPressEvent(QKeyEvent* event)
{
    hideCard();
    if (takesCompletionKey(*event))
        return;
    if (isReadOnly() || handleKey(*event)) {
        if (isReadOnly())
            BodyEditor::keyPressEvent(event);
        return;
    }
    if (!event->text().isEmpty())
        prepareTyping();
    BodyEditor::keyPressEvent(event);
    correctTyped(event->text());
    offerNames();
}

void RichPage::inputMethodEvent(QInputMethodEvent* event)
{
    if (!event->commitString().isEmpty() && !isReadOnly())
        prepareTyping();
    BodyEditor::inputMethodEvent(event);
    correctTyped(event->commitString());
}

bool RichPage::handleKey(QKeyEvent& event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return (modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier) && handleReturn(modifiers);
    case Qt::Key_Backspace:
        return modifiers == Qt::NoModifier && handleBackspace();
    case Qt::Key_Tab:
        return modifiers == Qt::NoModifier && handleTab(1);
    case Qt::Key_Backtab:
        return handleTab(-1);
    default:
        return false;
    }
}

void RichPage::prepareTyping()
{
    // Text beside a note, an image or the end of a link is plain text; a rule has none.
    QTextCursor cursor = textCursor();
    if (kindOf(cursor.blockFormat()) == BlockKind::Rule) {
        breakParagraph(cursor);
        setTextCursor(cursor);
        return;
    }
    const QTextCharFormat present = currentCharFormat();
    RunStyle style = styleOf(present);
    bool isInherited = runKindOf(present) != RunKind::Text || !standsFor(present).isEmpty();
    if (!style.link.isEmpty() && !cursor.hasSelection()) {
        QTextCursor next(cursor);
        const bool isInside = next.movePosition(QTextCursor::NextCharacter) && !cursor.atBlockEnd() &&
                              !cursor.atBlockStart() && styleOf(next.charFormat()).link == style.link;
        if (!isInside) {
            style.link.clear();
            style.linkTitle.clear();
            isInherited = true;
        }
    }
    if (isInherited)
        setCurrentCharFormat(m_formats.text(style, shapeOf(cursor.blockFormat())));
}

void RichPage::correctTyped(QStringView typed)
{
    if (typed.size() != 1 || m_typingRules.isEmpty())
        return;
    const QTextCursor cursor = textCursor();
    if (kindOf(cursor.blockFormat()) == BlockKind::Code || styleOf(cursor.charFormat()).code)
        return;
    const QString text = cursor.block().text().first(cursor.positionInBlock());
    const auto correction = app::typing::correctTyping(text, m_typingRules);
    if (!correction || !text.endsWith(typed))
        return;
    // A step of its own, so that one undo brings back what was typed; once the key is through.
    QTimer::singleShot(0, this, [this, place = cursor, before = text, correction = *correction] {
        if (isReadOnly() || place.block().text().first(place.positionInBlock()) != before)
            return;
        asStep(tr("Typographic correction"), [&](QTextCursor& present) {
            QTextCursor edit = place;
            const QTextCharFormat format = edit.charFormat();
            const bool isAtEnd = present.position() == edit.position();
            edit.movePosition(
                QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor,
                static_cast<int>(correction.removed));
            edit.insertText(correction.inserted, format);
            if (isAtEnd)
                present.setPosition(edit.position());
        });
    });
}

void RichPage::breakParagraph(QTextCursor& cursor)
{
    cursor.removeSelectedText();
    const BlockShape shape = shapeOf(cursor.blockFormat());
    const bool isBelowText = cursor.atBlockEnd();
    const BlockShape next = followingShape(shape, isBelowText);
    RunStyle style = styleOf(cursor.charFormat());
    style.link.clear();
    style.linkTitle.clear();
    if (next.kind != shape.kind)
        style = {};
    const bool isAtStart = cursor.atBlockStart() && !isBelowText;
    cursor.insertBlock(m_formats.block(next), m_formats.text(style, next));
    if (isAtStart && shape.kind == BlockKind::Heading)
        reshapeBlock(cursor.block().previous(), {}, m_formats);
    if (shape.kind == BlockKind::NumberedItem)
        renumber(cursor.block());
}

bool RichPage::handleReturn(Qt::KeyboardModifiers modifiers)
{
    QTextCursor cursor = textCursor();
    const BlockShape shape = shapeOf(cursor.blockFormat());
    if (auto* const table = cursor.currentTable()) {
        const QTextTableCell cell = table->cellAt(cursor);
        if (cell.row() + 1 < table->rows())
            setTextCursor(table->cellAt(cell.row() + 1, cell.column()).lastCursorPosition());
        else
            setTextCursor(QTextCursor(document()->findBlock(table->lastPosition() + 1)));
        return true;
    }
    if (modifiers == Qt::ShiftModifier || shape.kind == BlockKind::Code) {
        const bool leavesCode = shape.kind == BlockKind::Code && cursor.atBlockEnd() &&
                                !cursor.hasSelection() &&
                                cursor.block().text().endsWith(QChar::LineSeparator);
        cursor.beginEditBlock();
        if (leavesCode) {
            cursor.deletePreviousChar();
            cursor.insertBlock(m_formats.block({}), m_formats.text({}, {}));
        } else {
            cursor.insertText(QString(QChar::LineSeparator), m_formats.text({}, shape));
        }
        cursor.endEditBlock();
    } else {
        const bool isEmpty = cursor.block().length() == 1;
        const bool leaves = isEmpty && (isItem(shape.kind) || shape.kind == BlockKind::Quotation);
        cursor.beginEditBlock();
        if (leaves)
            reshapeBlock(cursor.block(), stepOut(shape), m_formats);
        else
            breakParagraph(cursor);
        cursor.endEditBlock();
    }
    setTextCursor(cursor);
    ensureCursorVisible();
    return true;
}

bool RichPage::handleBackspace()
{
    QTextCursor cursor = textCursor();
    if (cursor.hasSelection() || !cursor.atBlockStart() || cursor.currentTable())
        return false;
    const BlockShape shape = shapeOf(cursor.blockFormat());
    const QTextBlock previous = cursor.block().previous();
    if (shape.kind != BlockKind::Paragraph || shape.attributes.indent > 0) {
        cursor.beginEditBlock();
        reshapeBlock(cursor.block(), stepOut(shape), m_formats);
        cursor.endEditBlock();
        return true;
    }
    if (!previous.isValid())
        return false;
    if (const auto* const table = QTextCursor(previous).currentTable()) {
        // A table does not flow into the text below it.
        setTextCursor(table->cellAt(table->rows() - 1, table->columns() - 1).lastCursorPosition());
        return true;
    }
    if (kindOf(previous.blockFormat()) == BlockKind::Rule && previous.length() == 1) {
        QTextCursor rule(previous);
        rule.beginEditBlock();
        const QTextBlockFormat format = cursor.blockFormat();
        const QTextCharFormat text = cursor.block().charFormat();
        rule.deleteChar();
        rule.setBlockFormat(format);
        rule.setBlockCharFormat(text);
        rule.endEditBlock();
        return true;
    }
    return false;
}

bool RichPage::handleTab(int step)
{
    QTextCursor cursor = textCursor();
    if (auto* const table = cursor.currentTable()) {
        const QTextTableCell cell = table->cellAt(cursor);
        const int next = cell.row() * table->columns() + cell.column() + step;
        if (next < 0)
            return true;
        if (next >= table->rows() * table->columns())
            editTable(TableEdit::RowBelow, tr("Insert row"));
        QTextCursor target =
            table->cellAt(next / table->columns(), next % table->columns()).firstCursorPosition();
        target.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        setTextCursor(target);
        return true;
    }
    const BlockShape shape = shapeOf(cursor.blockFormat());
    if (isItem(shape.kind) ||
        (cursor.atBlockStart() && !cursor.hasSelection() && shape.kind != BlockKind::Code) || step < 0) {
        indentBlocks(step);
        return true;
    }
    return false;
}

} // namespace tw::desktop::manuscript::rich
