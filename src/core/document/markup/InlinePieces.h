// Inline Markdown taken apart, each piece with the place it came from. parseInline() makes runs of it, the
// reader of plain prose keeps the places.
#pragma once

#include "core/document/markup/Inline.h"
#include "core/document/markup/LinkTargets.h"

#include <vector>

namespace tw::core::document::markup {

struct InlinePiece
{
    RunKind kind = RunKind::Text;
    bool isCode = false;
    bool isBold = false;
    bool isItalic = false;
    bool isStruck = false;
    /** Index in InlinePieces::links; -1 for none. */
    int link = -1;
    /** Index in InlinePieces::attributes; -1 for none. */
    int attributes = -1;
    /** As Run::text. */
    QString text;
    LinkTarget image;
    qsizetype sourceStart = 0;
    qsizetype sourceLength = 0;
    /** Where the text stands as it is; -1 when it was written in other characters. */
    qsizetype textStart = -1;
};

struct InlinePieces
{
    std::vector<InlinePiece> list;
    std::vector<LinkTarget> links;
    std::vector<InlineAttributes> attributes;
};

/** In time linear in the text. Neighbouring pieces of one style are not merged. */
[[nodiscard]] InlinePieces takeApart(QStringView text);

/**
 * The groups that belong to no run but stand among the words, or in code. They show as they are written, and
 * readers of the prose pass over them. `pieces` are those of the text.
 */
[[nodiscard]] std::vector<SourceRange> findLooseGroups(QStringView text, const InlinePieces& pieces);

} // namespace tw::core::document::markup
