#pragma once

#include "core/document/markup/Blocks.h"
#include "core/document/markup/Inline.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>

namespace tw::desktop::manuscript::rich {

namespace markup = core::document::markup;

/** Characters that stand for a thing within the text. */
enum ObjectType : int
{
    ImageObject = QTextFormat::UserObject + 1,
    FootnoteObject,
};

/**
 * What a block of the text document is, apart from its text: kept in properties of its format, of which the
 * visible ones are made (see RichFormats). Cells of tables are blocks of kind Table, those of the header at
 * level 1.
 */
struct BlockShape
{
    markup::BlockKind kind = markup::BlockKind::Paragraph;
    int level = 0;
    int indent = -1;
    QString marker;
    QString label;
    markup::BlockAttributes attributes;

    friend bool operator==(const BlockShape&, const BlockShape&) = default;
};

[[nodiscard]] std::size_t qHash(const BlockShape& shape, std::size_t seed = 0);

[[nodiscard]] BlockShape shapeOf(const markup::Block& block);
[[nodiscard]] BlockShape shapeOf(const QTextBlockFormat& format);
/** Cheaper than the whole shape. */
[[nodiscard]] markup::BlockKind kindOf(const QTextBlockFormat& format);
void storeShape(QTextBlockFormat& format, const BlockShape& shape);

/** The style and kind of a run, kept in properties of a character format. */
[[nodiscard]] markup::RunStyle styleOf(const QTextCharFormat& format);
[[nodiscard]] markup::RunKind runKindOf(const QTextCharFormat& format);
/** An image's description or a footnote's label. */
[[nodiscard]] QString objectText(const QTextCharFormat& format);
/** An image's source as written. */
[[nodiscard]] QString objectTarget(const QTextCharFormat& format);
/** The character that a blank stands for, because a text document cannot hold it; empty for ordinary text. */
[[nodiscard]] QString standsFor(const QTextCharFormat& format);
void storeStandsFor(QTextCharFormat& format, const QString& character);
void storeStyle(QTextCharFormat& format, const markup::RunStyle& style);
/** For everything but plain text. */
void storeKind(QTextCharFormat& format, const markup::Run& run);

/** How the columns of a table are aligned, kept in its format; `columns` may have another size than the
 * table. */
[[nodiscard]] std::vector<markup::ColumnAlignment> columnsOf(const QTextFormat& tableFormat);
void storeColumns(QTextFormat& tableFormat, const std::vector<markup::ColumnAlignment>& columns);

[[nodiscard]] inline bool isItem(markup::BlockKind kind)
{
    return kind == markup::BlockKind::BulletItem || kind == markup::BlockKind::NumberedItem;
}

} // namespace tw::desktop::manuscript::rich
