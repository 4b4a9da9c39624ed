#pragma once

#include "core/document/markup/Blocks.h"
#include "core/document/markup/Inline.h"
#include "desktop/manuscript/rich/BlockShape.h"

#include <QTextCursor>

#include <span>
#include <vector>

class QTextTable;

namespace tw::desktop::manuscript::rich {

class RichFormats;

struct TextPiece
{
    QString text;
    QTextCharFormat format;
};

/** A block as the text document holds it. */
struct RichParagraph
{
    QTextBlockFormat format;
    /** Of text that is typed into it while it is empty. */
    QTextCharFormat textFormat;
    std::vector<TextPiece> pieces;
};

/** Anything but a table. Soft breaks become blanks that remember it, hard breaks line separators. */
[[nodiscard]] RichParagraph readParagraph(const markup::Block& block, const RichFormats& formats);
/** The paragraph of a cell. */
[[nodiscard]] RichParagraph readCell(
    const markup::Table& table, std::size_t row, std::size_t column, const RichFormats& formats);
[[nodiscard]] std::vector<TextPiece> readRuns(
    std::span<const markup::Run> runs, const BlockShape& shape, const RichFormats& formats);

void insertPieces(QTextCursor& cursor, const std::vector<TextPiece>& pieces);
/** At the cursor, which stands behind the table afterwards; of at least one row and one column. */
QTextTable* insertTable(QTextCursor& cursor, const markup::Table& table, const RichFormats& formats);

/** Columns of the widest row. */
[[nodiscard]] std::size_t columnCount(const markup::Table& table);

} // namespace tw::desktop::manuscript::rich
