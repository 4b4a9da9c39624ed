#include "desktop/manuscript/rich/RichFormats.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>
#include <array>
#include <cmath>

namespace tw::desktop::manuscript::rich {

using namespace Qt::Literals::StringLiterals;
using markup::BlockKind;
using markup::ColumnAlignment;
using markup::RunKind;
using markup::RunStyle;
using theme::Role;

namespace {

constexpr std::array headingScales{1.6, 1.35, 1.2, 1.1, 1.05, 1.0};
/** Of headings, code and tables. */
constexpr qreal tightLineHeight = 1.25;
// What a text asks for beyond these cannot be read.
constexpr double tightestSpacing = 0.5;
constexpr double loosestSpacing = 5;
constexpr qint32 deepestIndent = 12;
constexpr qreal footnoteScale = 0.88;
constexpr qreal codeScale = 0.9;
// In ems
constexpr qreal paragraphGap = 0.7;
constexpr qreal headingGapAbove = 1.5;
constexpr qreal headingGapBelow = 0.5;
constexpr qreal ruleGap = 0.9;
constexpr qreal codeGap = 1.0;
constexpr qreal itemGap = 0.2;
constexpr qreal step = 1.7;
constexpr qreal pageBreakGap = 2.6;
constexpr qreal firstLineIndent = 1.5;
constexpr qreal cellPadding = 0.35;
constexpr qreal readableContrast = 4.5;
/** How much of a highlight shows on dark paper. */
constexpr qreal highlightOnDark = 0.42;

qreal luminance(const QColor& color)
{
    const auto linear = [](qreal channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

qreal contrast(const QColor& left, const QColor& right)
{
    const auto [darker, lighter] = std::minmax({luminance(left), luminance(right)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor mixed(const QColor& color, const QColor& paper, qreal share)
{
    const auto channel = [share](float top, float bottom) {
        return static_cast<float>(top * share + bottom * (1 - share));
    };
    return QColor::fromRgbF(
        channel(color.redF(), paper.redF()), channel(color.greenF(), paper.greenF()),
        channel(color.blueF(), paper.blueF()));
}

Qt::Alignment alignmentOf(const QString& name)
{
    if (name == "center"_L1)
        return Qt::AlignHCenter;
    if (name == "right"_L1)
        return Qt::AlignRight | Qt::AlignAbsolute;
    if (name == "justify"_L1)
        return Qt::AlignJustify;
    if (name == "left"_L1)
        return Qt::AlignLeft | Qt::AlignAbsolute;
    return {};
}

/** Room around the text of a block, in ems. */
struct BlockSpace
{
    qreal above = 0;
    qreal below = 0;
    qreal left = 0;
    bool isTight = false;
};

BlockSpace spaceOf(const BlockShape& shape, bool hasFirstLineIndents)
{
    const qreal gap = hasFirstLineIndents ? 0 : paragraphGap;
    switch (shape.kind) {
    case BlockKind::Paragraph:
        return {gap, gap};
    case BlockKind::Heading:
        return {headingGapAbove, headingGapBelow, 0, true};
    case BlockKind::Rule:
        return {ruleGap, ruleGap};
    case BlockKind::BulletItem:
    case BlockKind::NumberedItem:
        return {0, itemGap, (shape.level + 1) * step};
    case BlockKind::Quotation:
        return {paragraphGap, paragraphGap, shape.level * step};
    case BlockKind::Code:
        return {codeGap, codeGap, step / 2, true};
    case BlockKind::FootnoteDefinition:
        return {gap, gap, step};
    case BlockKind::Table:
        return {0, 0, 0, true};
    }
    return {};
}

} // namespace

QColor readableInk(const QColor& ink, const QColor& paper)
{
    constexpr float lightnessStep = 0.04F;
    QColor color = ink.toHsl();
    const bool isDarkPaper = luminance(paper) < 0.2;
    for (float lightness = color.lightnessF(); contrast(color, paper) < readableContrast;) {
        lightness += isDarkPaper ? lightnessStep : -lightnessStep;
        if (lightness < 0 || lightness > 1)
            break;
        color.setHslF(std::max(0.0F, color.hslHueF()), color.hslSaturationF(), lightness);
    }
    return color.toRgb();
}

RichFormats::RichFormats()
    : m_theme(theme::builtInThemes().front())
    , m_codeFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family())
{}

void RichFormats::setLook(const theme::Theme& theme, const PageStyle& style, qreal lineHeightPercent)
{
    m_theme = theme;
    m_style = style;
    m_lineHeightPercent = lineHeightPercent;
    m_em = QFontInfo(pageFont(style)).pixelSize();
    m_blocks.clear();
    m_bases.clear();
}

QTextBlockFormat RichFormats::block(const BlockShape& shape) const
{
    auto found = m_blocks.constFind(shape);
    if (found == m_blocks.constEnd())
        found = m_blocks.insert(shape, makeBlock(shape));
    return *found;
}

QTextBlockFormat RichFormats::makeBlock(const BlockShape& shape) const
{
    QTextBlockFormat format;
    storeShape(format, shape);
    const NamedStyle* const named = namedStyle(shape);
    BlockSpace space = spaceOf(shape, m_style.hasFirstLineIndents);
    if (named) {
        space.left += named->leftSteps * step;
        if (named->isClose)
            space.above = space.below = 0;
    }
    qreal lineHeight = m_lineHeightPercent;
    if (shape.attributes.spacing > 0)
        lineHeight *=
            std::clamp(shape.attributes.spacing, tightestSpacing, loosestSpacing) / m_style.lineHeight;
    else if (space.isTight)
        lineHeight *= tightLineHeight / m_style.lineHeight;
    format.setLineHeight(lineHeight, QTextBlockFormat::ProportionalHeight);
    const qreal above = shape.attributes.pageBreak ? std::max(space.above, pageBreakGap) : space.above;
    if (above > 0)
        format.setTopMargin(above * m_em);
    if (space.below > 0)
        format.setBottomMargin(space.below * m_em);
    const qreal left = space.left + std::min(shape.attributes.indent, deepestIndent) * step;
    if (left > 0)
        format.setLeftMargin(left * m_em);
    if (shape.kind == BlockKind::Code)
        format.setRightMargin(space.left * m_em);
    else if (named && named->rightSteps > 0)
        format.setRightMargin(named->rightSteps * step * m_em);
    if (shape.kind == BlockKind::Rule)
        format.setAlignment(Qt::AlignHCenter);
    QString align = shape.attributes.align;
    if (align.isEmpty() && named)
        align = named->align;
    if (m_style.hasFirstLineIndents && shape.kind == BlockKind::Paragraph && align != "center"_L1 &&
        !(named && named->isClose))
        format.setTextIndent(firstLineIndent * m_em);
    if (const Qt::Alignment alignment = alignmentOf(align))
        format.setAlignment(alignment);
    return format;
}

const QTextCharFormat& RichFormats::base(BlockKind kind, int level) const
{
    const int key =
        static_cast<int>(kind) * 16 + (kind == BlockKind::Heading || kind == BlockKind::Table ? level : 0);
    auto found = m_bases.find(key);
    if (found == m_bases.end())
        found = m_bases.insert(key, makeBase(kind, level));
    return *found;
}

QTextCharFormat RichFormats::makeBase(BlockKind kind, int level) const
{
    QTextCharFormat format;
    const qreal points = m_style.fontPointSize * m_style.zoom;
    switch (kind) {
    case BlockKind::Heading: {
        const auto index = static_cast<std::size_t>(std::clamp<int>(level, 1, headingScales.size()) - 1);
        format.setFontPointSize(points * headingScales[index]);
        format.setFontWeight(QFont::Bold);
        break;
    }
    case BlockKind::Quotation:
        format.setForeground(m_theme.color(Role::QuietInk));
        break;
    case BlockKind::Code:
        format.setFontFamilies({m_codeFamily});
        format.setFontPointSize(points * codeScale);
        break;
    case BlockKind::FootnoteDefinition:
        format.setFontPointSize(points * footnoteScale);
        break;
    case BlockKind::Table:
        if (level == 1)
            format.setFontWeight(QFont::Bold);
        break;
    case BlockKind::Paragraph:
    case BlockKind::Rule:
    case BlockKind::BulletItem:
    case BlockKind::NumberedItem:
        break;
    }
    return format;
}

void RichFormats::decorate(QTextCharFormat& format, const RunStyle& style) const
{
    const QColor paper = m_theme.color(Role::Page);
    if (style.bold)
        format.setFontWeight(QFont::Bold);
    if (style.italic)
        format.setFontItalic(true);
    if (style.strikethrough)
        format.setFontStrikeOut(true);
    if (style.code) {
        format.setFontFamilies({m_codeFamily});
        format.setBackground(m_theme.color(Role::Hover));
    }
    if (!style.link.isEmpty()) {
        format.setForeground(m_theme.color(Role::Link));
        format.setFontUnderline(true);
    }
    const markup::InlineAttributes& attributes = style.attributes;
    if (attributes.underline)
        format.setFontUnderline(true);
    if (attributes.superscript)
        format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    if (attributes.subscript)
        format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
    if (!attributes.font.isEmpty())
        format.setFontFamilies({attributes.font});
    if (attributes.size > 0) {
        format.setFontPointSize(
            std::clamp<qreal>(attributes.size, PageLimits::smallestFont, PageLimits::largestFont * 2) *
            m_style.zoom);
    }
    if (const QColor color(attributes.color); color.isValid())
        format.setForeground(readableInk(color, paper));
    if (const QColor color(attributes.background); color.isValid()) {
        format.setBackground(
            m_theme.tone == theme::Theme::Tone::Dark ? mixed(color, paper, highlightOnDark) : color);
    }
}

const NamedStyle* RichFormats::namedStyle(const BlockShape& shape) const
{
    if (shape.attributes.style.isEmpty())
        return nullptr;
    const auto found = m_style.namedStyles.find(shape.attributes.style);
    return found == m_style.namedStyles.end() ? nullptr : &found->second;
}

void RichFormats::decorate(QTextCharFormat& format, const NamedStyle& style, const BlockShape& shape) const
{
    if (!style.fontFamily.isEmpty())
        format.setFontFamilies({style.fontFamily});
    // Headings and the like have a size of their own.
    const qreal present = format.hasProperty(QTextFormat::FontPointSize)
                              ? format.fontPointSize()
                              : m_style.fontPointSize * m_style.zoom;
    if (style.sizePercent != 100 && shape.kind != BlockKind::Table)
        format.setFontPointSize(present * style.sizePercent / 100);
    if (style.isBold)
        format.setFontWeight(QFont::Bold);
    if (style.isItalic)
        format.setFontItalic(true);
}

QTextCharFormat RichFormats::text(const RunStyle& style, const BlockShape& shape) const
{
    const QTextCharFormat& plain = base(shape.kind, shape.level);
    const NamedStyle* const named = namedStyle(shape);
    if (style == RunStyle() && !named)
        return plain;
    QTextCharFormat format = plain;
    if (named)
        decorate(format, *named, shape);
    if (style == RunStyle())
        return format;
    storeStyle(format, style);
    decorate(format, style);
    return format;
}

QTextCharFormat RichFormats::run(const markup::Run& run, const BlockShape& shape) const
{
    QTextCharFormat format = text(run.style, shape);
    if (run.kind != RunKind::Text && run.kind != RunKind::HardBreak)
        storeKind(format, run);
    return format;
}

QTextCharFormat RichFormats::restyled(const QTextCharFormat& format, const BlockShape& shape) const
{
    QTextCharFormat restyled =
        run({runKindOf(format), objectText(format), objectTarget(format), styleOf(format)}, shape);
    storeStandsFor(restyled, standsFor(format));
    return restyled;
}

QTextTableFormat RichFormats::table(const std::vector<ColumnAlignment>& columns) const
{
    QTextTableFormat format;
    storeColumns(format, columns);
    format.setBorder(1);
    format.setBorderCollapse(true);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(m_theme.color(Role::Border));
    format.setCellPadding(cellPadding * m_em);
    format.setTopMargin(paragraphGap * m_em);
    format.setBottomMargin(paragraphGap * m_em);
    format.setHeaderRowCount(1);
    return format;
}

} // namespace tw::desktop::manuscript::rich
