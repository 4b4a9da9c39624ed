#pragma once

#include "core/document/markup/Attributes.h"

#include <QString>
#include <QStringView>

#include <span>
#include <vector>

namespace tw::core::document::markup {

enum class RunKind
{
    Text,
    Image,
    FootnoteReference,
    /** A line end in the source that reads as a blank. */
    SoftBreak,
    HardBreak,
};

struct RunStyle
{
    bool bold = false;
    bool italic = false;
    bool strikethrough = false;
    bool code = false;
    /** The target as written; empty for none. It may be hostile: see safeLinkTarget() before following it. */
    QString link = {};
    QString linkTitle = {};
    InlineAttributes attributes = {};

    friend bool operator==(const RunStyle&, const RunStyle&) = default;
};

/** A stretch of text in one style, or one thing within it. */
struct Run
{
    RunKind kind = RunKind::Text;
    /** The text, an image's description, or a footnote's label. */
    QString text = {};
    /** An image's source; its title is linkTitle when the image is no link. */
    QString target = {};
    RunStyle style = {};

    friend bool operator==(const Run&, const Run&) = default;
};

/**
 * Reads the inline Markdown of one block, lines parted by \n, in time linear in its length. Marks without
 * their counterpart stay text. The result is merged as by canonicalRuns(), except for white space at the
 * edges of styles.
 */
[[nodiscard]] std::vector<Run> parseInline(QStringView text);

/** Whether parseInline() would give the text as a single run in no style; most paragraphs are like that. */
[[nodiscard]] bool isPlainInline(QStringView text);

/**
 * The same text in the form that Markdown can say: neighbours of one style are one run; white space at the
 * edges of bold, italic and struck text is plain; blanks beside breaks, and soft breaks beside others or at
 * the ends, are dropped; breaks have no style, images and footnote references none but a link.
 */
[[nodiscard]] std::vector<Run> canonicalRuns(std::span<const Run> runs);

} // namespace tw::core::document::markup
