#include "core/document/markup/LegacyStyles.h"

#include "core/document/markup/SafeValues.h"

#include <QList>

#include <algorithm>
#include <cmath>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double pointsPerPixel = 0.75;
constexpr double largestSize = 500;
constexpr int boldWeight = 600;
/** How far rich text indents a paragraph by a level. */
constexpr double pixelsPerIndent = 40;
constexpr int deepestIndent = 20;

struct Declaration
{
    QString name;
    QString value;
};

std::vector<Declaration> declarationsOf(const HtmlToken& tag)
{
    std::vector<Declaration> declarations;
    const QString style = tag.attribute("style"_L1);
    for (const QStringView part : QStringView(style).split(u';')) {
        const qsizetype colon = part.indexOf(u':');
        if (colon > 0)
            declarations.push_back(
                {part.first(colon).trimmed().toString().toLower(),
                 part.sliced(colon + 1).trimmed().toString()});
    }
    return declarations;
}

/** A length in points; 0 for what is none. */
qint32 points(const QString& value)
{
    const QString text = value.toLower();
    const bool isPixels = text.endsWith("px"_L1);
    if (!isPixels && !text.endsWith("pt"_L1))
        return 0;
    const double number = QStringView(text).chopped(2).trimmed().toDouble() * (isPixels ? pointsPerPixel : 1);
    return std::isfinite(number) && number > 0 && number <= largestSize
               ? static_cast<qint32>(std::lround(number))
               : 0;
}

QString firstFamily(const QString& families)
{
    QString family = families.section(u',', 0, 0).trimmed();
    return safeFontFamily(family.remove(u'"').remove(u'\'').trimmed());
}

void applyInline(RunStyle& style, const Declaration& declaration)
{
    const QString& name = declaration.name;
    const QString value = declaration.value.toLower();
    InlineAttributes& attributes = style.attributes;
    if (name == "color"_L1)
        attributes.color = safeColor(declaration.value);
    else if (name == "background-color"_L1 || name == "background"_L1)
        attributes.background = value == "transparent"_L1 ? QString() : safeColor(declaration.value);
    else if (name == "font-family"_L1)
        attributes.font = firstFamily(declaration.value);
    else if (name == "font-size"_L1)
        attributes.size = points(declaration.value);
    else if (name == "font-weight"_L1)
        style.bold = value.startsWith("bold"_L1) || value.toInt() >= boldWeight;
    else if (name == "font-style"_L1)
        style.italic = value == "italic"_L1 || value == "oblique"_L1;
    else if (name == "vertical-align"_L1) {
        attributes.superscript = value == "super"_L1;
        attributes.subscript = value == "sub"_L1;
    } else if (name == "text-decoration"_L1 || name == "text-decoration-line"_L1) {
        attributes.underline |= value.contains("underline"_L1);
        style.strikethrough |= value.contains("line-through"_L1);
    }
}

/** Sizes of the font element, 1 to 7. */
qint32 fontElementSize(const QString& size)
{
    static constexpr qint32 sizes[] = {8, 10, 12, 14, 18, 24, 36};
    const int number = size.toInt();
    return number >= 1 && number <= 7 && !size.startsWith(u'+') ? sizes[number - 1] : 0;
}

void applyTag(RunStyle& style, const HtmlToken& tag)
{
    const QString& name = tag.text;
    if (name == "b"_L1 || name == "strong"_L1)
        style.bold = true;
    else if (name == "i"_L1 || name == "em"_L1 || name == "cite"_L1)
        style.italic = true;
    else if (name == "u"_L1 || name == "ins"_L1)
        style.attributes.underline = true;
    else if (name == "s"_L1 || name == "strike"_L1 || name == "del"_L1)
        style.strikethrough = true;
    else if (name == "sup"_L1)
        style.attributes.superscript = true;
    else if (name == "sub"_L1)
        style.attributes.subscript = true;
    else if (name == "code"_L1 || name == "tt"_L1 || name == "kbd"_L1 || name == "samp"_L1)
        style.code = true;
    else if (name == "mark"_L1)
        style.attributes.background = u"yellow"_s;
    else if (name == "a"_L1) {
        style.link = safeLinkTarget(tag.attribute("href"_L1));
        style.linkTitle = style.link.isEmpty() ? QString() : tag.attribute("title"_L1);
    } else if (name == "font"_L1) {
        if (const QString color = safeColor(tag.attribute("color"_L1)); !color.isEmpty())
            style.attributes.color = color;
        if (const QString family = firstFamily(tag.attribute("face"_L1)); !family.isEmpty())
            style.attributes.font = family;
        if (const qint32 size = fontElementSize(tag.attribute("size"_L1)); size > 0)
            style.attributes.size = size;
    }
}

double lineFactor(const QString& value)
{
    const bool isPercent = value.endsWith(u'%');
    const double factor =
        isPercent ? QStringView(value).chopped(1).toDouble() / 100 : QStringView(value).toDouble();
    constexpr double largestFactor = 10;
    return std::isfinite(factor) && factor > 0 && factor <= largestFactor && factor != 1 ? factor : 0;
}

qint32 boundedIndent(double levels)
{
    return std::isfinite(levels) ? static_cast<qint32>(std::clamp(levels, 0.0, double(deepestIndent))) : 0;
}

} // namespace

RunStyle styleWithin(const HtmlToken& tag, RunStyle outer)
{
    applyTag(outer, tag);
    for (const Declaration& declaration : declarationsOf(tag))
        applyInline(outer, declaration);
    return outer;
}

BlockAttributes blockAttributesOf(const HtmlToken& tag)
{
    BlockAttributes attributes;
    attributes.align = safeAlignment(tag.attribute("align"_L1).toLower());
    if (tag.text == "center"_L1)
        attributes.align = u"center"_s;
    for (const auto& [name, value] : declarationsOf(tag)) {
        if (name == "text-align"_L1)
            attributes.align = safeAlignment(value.toLower());
        else if (name == "line-height"_L1)
            attributes.spacing = lineFactor(value);
        else if (name == "-qt-block-indent"_L1)
            attributes.indent = boundedIndent(value.toDouble());
        else if (name == "margin-left"_L1 && attributes.indent == 0)
            attributes.indent = boundedIndent(points(value) / pointsPerPixel / pixelsPerIndent);
        else if (name == "page-break-before"_L1)
            attributes.pageBreak = value.toLower() == "always"_L1;
    }
    // The usual side needs no group.
    if (attributes.align == "left"_L1)
        attributes.align.clear();
    return attributes;
}

} // namespace tw::core::document::markup
