// What makes a line the start of a block. The reader recognises lines by these, the writers look that no text
// is mistaken for one. Lines come without their line end; every function takes time linear in the line.
#pragma once

#include <QStringView>

#include <optional>

namespace tw::core::document::markup {

[[nodiscard]] bool isBlankLine(QStringView line);

struct HeadingLine
{
    int level = 1;
    QStringView text;
};
[[nodiscard]] std::optional<HeadingLine> matchHeading(QStringView line);

/** Three or more of "-", "*" and "_", also mixed and with blanks between. */
[[nodiscard]] bool isRuleLine(QStringView line);

struct ItemLine
{
    bool isNumbered = false;
    /** Columns before the marker; tabs stop at every fourth. */
    int indent = 0;
    QStringView marker;
    QStringView text;
};
[[nodiscard]] std::optional<ItemLine> matchItem(QStringView line);

struct QuotationLine
{
    /** From 1; ends at deepestLevel, further marks are text. */
    int depth = 1;
    QStringView text;
};
[[nodiscard]] std::optional<QuotationLine> matchQuotation(QStringView line);

struct FenceLine
{
    QStringView fence;
    QStringView language;
};
[[nodiscard]] std::optional<FenceLine> matchFence(QStringView line);
/** Whether the line ends the code that the fence began. */
[[nodiscard]] bool closesFence(QStringView line, QStringView fence);

struct FootnoteLine
{
    QStringView label;
    QStringView text;
};
[[nodiscard]] std::optional<FootnoteLine> matchFootnote(QStringView line);

/** The row of dashes between a table's header and its body. */
[[nodiscard]] bool isTableSeparator(QStringView line);

/** Whether the line begins something other than a paragraph or a table, whatever stands before it. */
[[nodiscard]] bool startsBlock(QStringView line);

} // namespace tw::core::document::markup
