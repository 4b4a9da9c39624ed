#pragma once

#include "desktop/manuscript/PageStyle.h"
#include "desktop/manuscript/rich/BlockShape.h"
#include "desktop/theme/Theme.h"

#include <QFont>
#include <QHash>
#include <QTextTableFormat>

namespace tw::desktop::manuscript::rich {

/**
 * How blocks and runs look: makes formats of what they are, for one theme and one style of the page. Those of
 * blocks and of plain text are made once and given out again. Main thread only.
 */
class RichFormats
{
public:
    RichFormats();

    /** Formats that were given out before are those of the old look. */
    void setLook(const theme::Theme& theme, const PageStyle& style, qreal lineHeightPercent);

    [[nodiscard]] QTextBlockFormat block(const BlockShape& shape) const;
    /** Of text in such a block. */
    [[nodiscard]] QTextCharFormat text(const markup::RunStyle& style, const BlockShape& shape) const;
    [[nodiscard]] QTextCharFormat run(const markup::Run& run, const BlockShape& shape) const;
    /** The same run in a block of another shape, or in another look. */
    [[nodiscard]] QTextCharFormat restyled(const QTextCharFormat& format, const BlockShape& shape) const;
    [[nodiscard]] QTextTableFormat table(const std::vector<markup::ColumnAlignment>& columns) const;

    /** Width of an em of running text, in pixels. */
    [[nodiscard]] qreal em() const { return m_em; }
    [[nodiscard]] const theme::Theme& theme() const { return m_theme; }

private:
    [[nodiscard]] QTextBlockFormat makeBlock(const BlockShape& shape) const;
    [[nodiscard]] const QTextCharFormat& base(markup::BlockKind kind, int level) const;
    [[nodiscard]] QTextCharFormat makeBase(markup::BlockKind kind, int level) const;
    void decorate(QTextCharFormat& format, const markup::RunStyle& style) const;
    /** Null when the block has no named style, or one that nobody gave a look. */
    [[nodiscard]] const NamedStyle* namedStyle(const BlockShape& shape) const;
    void decorate(QTextCharFormat& format, const NamedStyle& style, const BlockShape& shape) const;

    theme::Theme m_theme;
    PageStyle m_style;
    qreal m_lineHeightPercent = 100;
    qreal m_em = 16;
    QString m_codeFamily;
    mutable QHash<BlockShape, QTextBlockFormat> m_blocks;
    mutable QHash<int, QTextCharFormat> m_bases;
};

/** The colour, or one of its hue that can be read on the paper. */
[[nodiscard]] QColor readableInk(const QColor& ink, const QColor& paper);

} // namespace tw::desktop::manuscript::rich
