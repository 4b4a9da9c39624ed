// What is put into the text as a whole: tables, rules, images, notes, Markdown.
#include "desktop/manuscript/rich/RichPage.h"

#include "core/document/markup/Inline.h"
#include "desktop/manuscript/rich/ParagraphChange.h"
#include "desktop/manuscript/rich/RichTextReader.h"

#include <QTextBlock>
#include <QTextTable>

#include <algorithm>

namespace tw::desktop::manuscript::rich {

using markup::Block;
using markup::BlockKind;
using markup::ColumnAlignment;
using markup::Run;
using markup::RunKind;
using markup::RunStyle;

namespace {

markup::Table emptyTable(int rows, int columns)
{
    markup::Table table;
    table.columns.resize(static_cast<std::size_t>(columns));
    table.rows.resize(
        static_cast<std::size_t>(rows), std::vector<QString>(static_cast<std::size_t>(columns)));
    return table;
}

/** Everything in one line: what a cell of a table can take. */
std::vector<Run> asOneLine(const std::vector<Block>& blocks)
{
    std::vector<Run> runs;
    for (const Block& block : blocks) {
        if (!runs.empty())
            runs.push_back({RunKind::Text, QStringLiteral(" "), {}, {}});
        for (Run& run : markup::parseInline(block.text)) {
            const bool isBreak = run.kind == RunKind::SoftBreak || run.kind == RunKind::HardBreak;
            runs.push_back(isBreak ? Run{RunKind::Text, QStringLiteral(" "), {}, {}} : std::move(run));
        }
    }
    return runs;
}

void removeTable(QTextCursor& cursor, const QTextTable& table)
{
    const QTextBlock next = cursor.document()->findBlock(table.lastPosition() + 1);
    const QTextBlockFormat nextFormat = next.blockFormat();
    const QTextCharFormat nextText = next.charFormat();
    const int first = table.firstPosition() - 1;
    cursor.setPosition(table.lastPosition() + 1);
    cursor.setPosition(first, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    // The table parted two paragraphs, which stay two.
    if (cursor.atBlockStart()) {
        cursor.setBlockFormat(nextFormat);
        cursor.setBlockCharFormat(nextText);
    } else if (!cursor.atBlockEnd()) {
        cursor.insertBlock(nextFormat, nextText);
    }
}

/** Adds or removes one row or column beside the cell; `columns` follows. */
void changeSize(
    QTextTable& table, const QTextTableCell& cell, RichPage::TableEdit edit,
    std::vector<ColumnAlignment>& columns)
{
    const int row = cell.row();
    const int column = cell.column();
    switch (edit) {
    case RichPage::TableEdit::RowAbove:
        table.insertRows(row, 1);
        break;
    case RichPage::TableEdit::RowBelow:
        table.insertRows(row + 1, 1);
        break;
    case RichPage::TableEdit::ColumnBefore:
        table.insertColumns(column, 1);
        columns.insert(columns.begin() + column, ColumnAlignment::Default);
        break;
    case RichPage::TableEdit::ColumnAfter:
        table.insertColumns(column + 1, 1);
        columns.insert(columns.begin() + column + 1, ColumnAlignment::Default);
        break;
    case RichPage::TableEdit::RemoveRow:
        table.removeRows(row, 1);
        break;
    case RichPage::TableEdit::RemoveColumn:
        table.removeColumns(column, 1);
        columns.erase(columns.begin() + column);
        break;
    case RichPage::TableEdit::RemoveTable:
        break;
    }
}

/** To the end of the paragraph above when the cursor begins one, so that a table leaves no empty one behind.
 */
void goBelowText(QTextCursor& cursor)
{
    const QTextBlock previous = cursor.block().previous();
    if (!cursor.atBlockStart() || !previous.isValid() || kindOf(previous.blockFormat()) == BlockKind::Table)
        return;
    if (cursor.atBlockEnd())
        cursor.deletePreviousChar();
    else
        cursor.movePosition(QTextCursor::PreviousCharacter);
}

} // namespace

void RichPage::insertBlocks(QTextCursor& cursor, const std::vector<Block>& blocks)
{
    cursor.removeSelectedText();
    const BlockShape shape = shapeOf(cursor.blockFormat());
    const auto isPlain = [](const Block& block) {
        return block.kind == BlockKind::Paragraph && block.attributes.isEmpty();
    };
    if (cursor.currentTable()) {
        insertPieces(cursor, readRuns(asOneLine(blocks), shape, m_formats));
        return;
    }
    if (blocks.size() == 1 && isPlain(blocks.front())) {
        insertPieces(cursor, readRuns(markup::parseInline(blocks.front().text), shape, m_formats));
        return;
    }
    if (blocks.front().kind == BlockKind::Table)
        goBelowText(cursor);
    const bool hasTail = !cursor.atBlockEnd();
    const QTextCharFormat tailFormat = cursor.block().charFormat();
    const QTextBlockFormat tailBlock = cursor.blockFormat();
    bool isBlockFree = cursor.block().length() == 1;
    bool isFirst = true;
    for (const Block& block : blocks) {
        if (block.kind == BlockKind::Table) {
            rich::insertTable(cursor, block.table, m_formats);
            isBlockFree = true;
            cursor.setBlockFormat(m_formats.block({}));
            cursor.setBlockCharFormat(m_formats.text({}, {}));
            // What follows already needs no empty paragraph before it.
            const QTextBlock next = cursor.block().next();
            const bool isLast = &block == &blocks.back();
            if (isLast && !hasTail && next.isValid() && kindOf(next.blockFormat()) != BlockKind::Table)
                cursor.deleteChar();
        } else if (isFirst && !isBlockFree && isPlain(block)) {
            insertPieces(cursor, readRuns(markup::parseInline(block.text), shape, m_formats));
        } else {
            const RichParagraph paragraph = readParagraph(block, m_formats);
            if (isBlockFree && !hasTail) {
                cursor.setBlockFormat(paragraph.format);
                cursor.setBlockCharFormat(paragraph.textFormat);
            } else {
                cursor.insertBlock(paragraph.format, paragraph.textFormat);
            }
            insertPieces(cursor, paragraph.pieces);
            isBlockFree = false;
        }
        isFirst = false;
    }
    // What stood behind the cursor stays what it was.
    if (blocks.back().kind == BlockKind::Table) {
        if (hasTail)
            cursor.setBlockFormat(tailBlock);
    } else if (hasTail && !cursor.atBlockEnd() && !isPlain(blocks.back())) {
        cursor.insertBlock(tailBlock, tailFormat);
        cursor.movePosition(QTextCursor::PreviousBlock);
        cursor.movePosition(QTextCursor::EndOfBlock);
    }
    if (std::ranges::find(blocks, BlockKind::Table, &Block::kind) != blocks.end()) {
        // The document knows its tables only when an edit is done.
        cursor.endEditBlock();
        m_body.leaveOutEmptyEdges();
        cursor.beginEditBlock();
    }
}

void RichPage::insertMarkdown(const QString& markdown)
{
    QTextCursor cursor = textCursor();
    const markup::Blocks blocks = markup::parseBlocks(markdown);
    if (blocks.list.empty() || isReadOnly())
        return;
    cursor.beginEditBlock();
    insertBlocks(cursor, blocks.list);
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

void RichPage::insertRule()
{
    asStep(tr("Insert rule"), [this](QTextCursor& cursor) {
        if (cursor.currentTable())
            return;
        Block rule;
        rule.kind = BlockKind::Rule;
        insertBlocks(cursor, {rule});
        if (cursor.atBlockEnd() &&
            (!cursor.block().next().isValid() || kindOf(cursor.blockFormat()) == BlockKind::Rule))
            breakParagraph(cursor);
    });
}

void RichPage::insertPageBreak()
{
    asStep(tr("Page break"), [this](QTextCursor& cursor) {
        if (cursor.currentTable())
            return;
        if (cursor.block().length() > 1)
            breakParagraph(cursor);
        BlockShape shape = shapeOf(cursor.blockFormat());
        shape.attributes.pageBreak = true;
        reshapeBlock(cursor.block(), shape, m_formats);
    });
}

void RichPage::insertTable(int rows, int columns)
{
    if (isInTable())
        return;
    const int before = textCursor().selectionStart();
    asStep(tr("Insert table"), [&](QTextCursor& cursor) {
        Block block;
        block.kind = BlockKind::Table;
        block.table = emptyTable(rows, columns);
        insertBlocks(cursor, {block});
    });
    for (QTextBlock cell = document()->findBlock(before); cell.isValid(); cell = cell.next()) {
        if (const auto* const table = QTextCursor(cell).currentTable()) {
            setTextCursor(table->cellAt(0, 0).firstCursorPosition());
            return;
        }
    }
}

void RichPage::insertImage(const QString& assetPath, const QString& description)
{
    asStep(tr("Insert image"), [&](QTextCursor& cursor) {
        cursor.setPosition(cursor.selectionEnd());
        // A picture stands by itself, unless it is in a list or a table.
        if (kindOf(cursor.blockFormat()) == BlockKind::Paragraph && cursor.block().length() > 1) {
            cursor.movePosition(QTextCursor::EndOfBlock);
            breakParagraph(cursor);
            reshapeBlock(cursor.block(), {}, m_formats);
        }
        const Run run{RunKind::Image, description, assetPath, {}};
        insertPieces(cursor, readRuns({&run, 1}, shapeOf(cursor.blockFormat()), m_formats));
    });
}

void RichPage::insertFootnoteReference(const QString& label)
{
    asStep(tr("Insert footnote"), [&](QTextCursor& cursor) {
        cursor.setPosition(cursor.selectionEnd());
        const Run run{RunKind::FootnoteReference, label, {}, {}};
        insertPieces(cursor, readRuns({&run, 1}, shapeOf(cursor.blockFormat()), m_formats));
    });
}

void RichPage::setLink(const QString& target)
{
    const auto link = [&target](RunStyle& style) {
        style.link = target;
        style.linkTitle.clear();
    };
    if (textCursor().hasSelection()) {
        changeStyle(target.isEmpty() ? tr("Remove link") : tr("Insert link"), link);
        return;
    }
    if (target.isEmpty())
        return;
    asStep(tr("Insert link"), [&](QTextCursor& cursor) {
        RunStyle style = styleOf(cursor.charFormat());
        link(style);
        cursor.insertText(target, m_formats.text(style, shapeOf(cursor.blockFormat())));
    });
}

bool RichPage::isInTable() const
{
    return textCursor().currentTable() != nullptr;
}

void RichPage::editTable(TableEdit edit, const QString& label)
{
    asStep(label, [&](QTextCursor& cursor) {
        auto* const table = cursor.currentTable();
        if (!table)
            return;
        const bool removesAll = edit == TableEdit::RemoveTable ||
                                (edit == TableEdit::RemoveRow && table->rows() == 1) ||
                                (edit == TableEdit::RemoveColumn && table->columns() == 1);
        if (removesAll) {
            removeTable(cursor, *table);
            return;
        }
        std::vector<ColumnAlignment> columns = columnsOf(table->format());
        columns.resize(static_cast<std::size_t>(table->columns()));
        changeSize(*table, table->cellAt(cursor), edit, columns);
        dressTable(*table, columns);
        m_body.touchTable(*table);
    });
}

void RichPage::dressTable(QTextTable& table, const std::vector<ColumnAlignment>& columns)
{
    table.setFormat(m_formats.table(columns));
    const markup::Table alignment{columns, {}};
    for (int row = 0; row < table.rows(); ++row) {
        for (int column = 0; column < table.columns(); ++column) {
            // New cells take their looks from their place.
            const QTextBlock block = table.cellAt(row, column).firstCursorPosition().block();
            const RichParagraph model = readCell(
                alignment, static_cast<std::size_t>(row), static_cast<std::size_t>(column), m_formats);
            QTextCursor(block).setBlockFormat(model.format);
            restyleBlock(block, m_formats);
        }
    }
}

} // namespace tw::desktop::manuscript::rich
