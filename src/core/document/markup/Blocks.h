#pragma once

#include "core/document/markup/Attributes.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace tw::core::document::markup {

enum class BlockKind
{
    Paragraph,
    Heading,
    Rule,
    BulletItem,
    NumberedItem,
    Quotation,
    Code,
    Table,
    FootnoteDefinition,
};

enum class ColumnAlignment
{
    Default,
    Left,
    Center,
    Right,
};

struct Table
{
    /** One a column of the header. */
    std::vector<ColumnAlignment> columns = {};
    /** Cells as inline Markdown; the first row is the header. Rows may be shorter or longer than it. */
    std::vector<std::vector<QString>> rows = {};

    friend bool operator==(const Table&, const Table&) = default;
};

/** One line of a block's text and where it stands in the body. */
struct BlockLine
{
    /** Offset in Block::text. */
    qsizetype inText = 0;
    /** Offset in the body. */
    qsizetype inBody = 0;

    friend bool operator==(const BlockLine&, const BlockLine&) = default;
};

/** One paragraph, heading, list item, ... A body is a flat sequence of them. */
struct Block
{
    BlockKind kind = BlockKind::Paragraph;
    /** Headings: 1 to 6. Items: depth from 0. Quotations: depth from 1 (">> x" is 2). Depths end at
     * deepestLevel. */
    int level = 0;
    /**
     * Items: columns before the marker as written, -1 for four a level. Depths are read from how items of a
     * list are indented against each other, so whoever changes a level sets this to -1 in the whole list.
     */
    int indent = -1;
    /** Items: as written ("-", "*", "3."). Code: the fence as written. */
    QString marker = {};
    /** Footnote definitions: the label. Code: the language. */
    QString label = {};
    /**
     * Inline Markdown without the block's own marks and without its attribute group, lines parted by \n.
     * White space at its ends is kept as it stands. Code: the raw lines. Rules and tables: empty.
     */
    QString text = {};
    /** Where each line of `text` stands in the body. */
    std::vector<BlockLine> lines = {};
    /** None for rules, code and tables. */
    BlockAttributes attributes = {};
    Table table = {};
    /** The content in the body, without its last line end. */
    qsizetype start = 0;
    qsizetype length = 0;
    /** The line end and the blank lines that follow, up to the next block. */
    qsizetype gapLength = 0;
};

/** Equal in what they say, wherever they stand. */
[[nodiscard]] bool isSameContent(const Block& left, const Block& right);

inline constexpr int deepestLevel = 9;

/** The blocks of a body. The lead and then content and gap of every block, put together, are the body. */
struct Blocks
{
    /** Blank lines before the first block. */
    qsizetype leadLength = 0;
    std::vector<Block> list = {};
};

/** Reads any text, in time linear in its length. Line ends are \n, \r\n and \r. Any thread. */
[[nodiscard]] Blocks parseBlocks(QStringView body);

} // namespace tw::core::document::markup
