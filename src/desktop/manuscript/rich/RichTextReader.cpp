#include "desktop/manuscript/rich/RichTextReader.h"

#include "core/document/markup/CharacterSet.h"
#include "desktop/manuscript/rich/RichFormats.h"

#include <QTextTable>

#include <algorithm>

namespace tw::desktop::manuscript::rich {

using markup::BlockKind;
using markup::Run;
using markup::RunKind;

namespace {

/** Characters that part blocks, lines and frames in a text document cannot be text in one. */
constexpr markup::CharacterSet specialCharacters(u"\u2028\u2029\ufdd0\ufdd1\n\r\ufffc");

void appendText(std::vector<TextPiece>& pieces, const QString& text, const QTextCharFormat& format)
{
    qsizetype start = 0;
    for (qsizetype index = specialCharacters.findIn(text); index < text.size();
         index = specialCharacters.findIn(text, start)) {
        if (index > start)
            pieces.push_back({text.mid(start, index - start), format});
        QTextCharFormat substitute = format;
        storeStandsFor(substitute, text[index]);
        pieces.push_back({QStringLiteral(" "), substitute});
        start = index + 1;
    }
    if (start < text.size())
        pieces.push_back({start == 0 ? text : text.mid(start), format});
}

QString codeText(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(u'\n', QChar(QChar::LineSeparator));
    return text;
}

} // namespace

std::vector<TextPiece> readRuns(
    std::span<const Run> runs, const BlockShape& shape, const RichFormats& formats)
{
    std::vector<TextPiece> pieces;
    pieces.reserve(runs.size());
    for (const Run& run : runs) {
        switch (run.kind) {
        case RunKind::Text:
            appendText(pieces, run.text, formats.text(run.style, shape));
            break;
        case RunKind::SoftBreak:
            pieces.push_back({QStringLiteral(" "), formats.run(run, shape)});
            break;
        case RunKind::HardBreak:
            pieces.push_back({QString(QChar::LineSeparator), formats.text({}, shape)});
            break;
        case RunKind::Image:
        case RunKind::FootnoteReference:
            pieces.push_back({QString(QChar::ObjectReplacementCharacter), formats.run(run, shape)});
            break;
        }
    }
    return pieces;
}

RichParagraph readParagraph(const markup::Block& block, const RichFormats& formats)
{
    const BlockShape shape = shapeOf(block);
    RichParagraph paragraph{formats.block(shape), formats.text({}, shape), {}};
    if (block.kind == BlockKind::Code) {
        if (!block.text.isEmpty())
            paragraph.pieces.push_back({codeText(block.text), paragraph.textFormat});
    } else if (markup::isPlainInline(block.text)) {
        appendText(paragraph.pieces, block.text, paragraph.textFormat);
    } else if (block.kind != BlockKind::Rule) {
        paragraph.pieces = readRuns(markup::parseInline(block.text), shape, formats);
    }
    return paragraph;
}

RichParagraph readCell(
    const markup::Table& table, std::size_t row, std::size_t column, const RichFormats& formats)
{
    BlockShape shape;
    shape.kind = BlockKind::Table;
    shape.level = row == 0 ? 1 : 0;
    RichParagraph paragraph{formats.block(shape), formats.text({}, shape), {}};
    const auto alignment =
        column < table.columns.size() ? table.columns[column] : markup::ColumnAlignment::Default;
    if (alignment == markup::ColumnAlignment::Center)
        paragraph.format.setAlignment(Qt::AlignHCenter);
    else if (alignment == markup::ColumnAlignment::Right)
        paragraph.format.setAlignment(Qt::AlignRight | Qt::AlignAbsolute);
    if (row < table.rows.size() && column < table.rows[row].size())
        paragraph.pieces = readRuns(markup::parseInline(table.rows[row][column]), shape, formats);
    return paragraph;
}

void insertPieces(QTextCursor& cursor, const std::vector<TextPiece>& pieces)
{
    for (const TextPiece& piece : pieces)
        cursor.insertText(piece.text, piece.format);
}

std::size_t columnCount(const markup::Table& table)
{
    std::size_t columns = std::max<std::size_t>(1, table.columns.size());
    for (const auto& row : table.rows)
        columns = std::max(columns, row.size());
    return columns;
}

QTextTable* insertTable(QTextCursor& cursor, const markup::Table& table, const RichFormats& formats)
{
    const std::size_t rows = std::max<std::size_t>(1, table.rows.size());
    const std::size_t columns = columnCount(table);
    QTextTable* const made =
        cursor.insertTable(static_cast<int>(rows), static_cast<int>(columns), formats.table(table.columns));
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            const RichParagraph paragraph = readCell(table, row, column, formats);
            QTextCursor cell =
                made->cellAt(static_cast<int>(row), static_cast<int>(column)).firstCursorPosition();
            cell.setBlockFormat(paragraph.format);
            cell.setBlockCharFormat(paragraph.textFormat);
            insertPieces(cell, paragraph.pieces);
        }
    }
    cursor.setPosition(made->lastPosition() + 1);
    return made;
}

} // namespace tw::desktop::manuscript::rich
