#include "desktop/manuscript/rich/BlockShape.h"

#include <QHashFunctions>
#include <QVariant>

namespace tw::desktop::manuscript::rich {

using markup::BlockKind;
using markup::ColumnAlignment;
using markup::RunKind;
using markup::RunStyle;

namespace {

enum Property : int
{
    KindProperty = QTextFormat::UserProperty + 1,
    LevelProperty,
    IndentProperty,
    MarkerProperty,
    LabelProperty,
    AlignProperty,
    SpacingProperty,
    IndentationProperty,
    PageBreakProperty,
    StyleNameProperty,
    ColumnsProperty,
    RunKindProperty,
    RunFlagsProperty,
    LinkProperty,
    LinkTitleProperty,
    ColorProperty,
    BackgroundProperty,
    FontProperty,
    SizeProperty,
    ObjectTextProperty,
    ObjectTargetProperty,
    StandsForProperty,
};

enum RunFlag : int
{
    Bold = 1,
    Italic = 2,
    Strikethrough = 4,
    Code = 8,
    Underline = 16,
    Superscript = 32,
    Subscript = 64,
};

/** Values that say nothing are left out, so that equal formats stay equal. */
void store(QTextFormat& format, int property, int value)
{
    if (value != 0)
        format.setProperty(property, value);
    else
        format.clearProperty(property);
}

void store(QTextFormat& format, int property, const QString& value)
{
    if (!value.isEmpty())
        format.setProperty(property, value);
    else
        format.clearProperty(property);
}

} // namespace

std::size_t qHash(const BlockShape& shape, std::size_t seed)
{
    const markup::BlockAttributes& attributes = shape.attributes;
    return qHashMulti(
        seed, static_cast<int>(shape.kind), shape.level, shape.indent, shape.marker, shape.label,
        attributes.align, attributes.spacing, attributes.indent, attributes.pageBreak, attributes.style);
}

BlockShape shapeOf(const markup::Block& block)
{
    return {block.kind, block.level, block.indent, block.marker, block.label, block.attributes};
}

BlockKind kindOf(const QTextBlockFormat& format)
{
    return static_cast<BlockKind>(format.intProperty(KindProperty));
}

BlockShape shapeOf(const QTextBlockFormat& format)
{
    BlockShape shape;
    shape.kind = kindOf(format);
    shape.level = format.intProperty(LevelProperty);
    shape.indent = format.intProperty(IndentProperty) - 1;
    shape.marker = format.stringProperty(MarkerProperty);
    shape.label = format.stringProperty(LabelProperty);
    shape.attributes.align = format.stringProperty(AlignProperty);
    shape.attributes.spacing = format.doubleProperty(SpacingProperty);
    shape.attributes.indent = format.intProperty(IndentationProperty);
    shape.attributes.pageBreak = format.boolProperty(PageBreakProperty);
    shape.attributes.style = format.stringProperty(StyleNameProperty);
    return shape;
}

void storeShape(QTextBlockFormat& format, const BlockShape& shape)
{
    store(format, KindProperty, static_cast<int>(shape.kind));
    store(format, LevelProperty, shape.level);
    store(format, IndentProperty, shape.indent + 1);
    store(format, MarkerProperty, shape.marker);
    store(format, LabelProperty, shape.label);
    store(format, AlignProperty, shape.attributes.align);
    if (shape.attributes.spacing > 0)
        format.setProperty(SpacingProperty, shape.attributes.spacing);
    else
        format.clearProperty(SpacingProperty);
    store(format, IndentationProperty, shape.attributes.indent);
    if (shape.attributes.pageBreak)
        format.setProperty(PageBreakProperty, true);
    else
        format.clearProperty(PageBreakProperty);
    store(format, StyleNameProperty, shape.attributes.style);
}

RunStyle styleOf(const QTextCharFormat& format)
{
    RunStyle style;
    const int flags = format.intProperty(RunFlagsProperty);
    style.bold = flags & Bold;
    style.italic = flags & Italic;
    style.strikethrough = flags & Strikethrough;
    style.code = flags & Code;
    style.attributes.underline = flags & Underline;
    style.attributes.superscript = flags & Superscript;
    style.attributes.subscript = flags & Subscript;
    style.link = format.stringProperty(LinkProperty);
    style.linkTitle = format.stringProperty(LinkTitleProperty);
    style.attributes.color = format.stringProperty(ColorProperty);
    style.attributes.background = format.stringProperty(BackgroundProperty);
    style.attributes.font = format.stringProperty(FontProperty);
    style.attributes.size = format.intProperty(SizeProperty);
    return style;
}

RunKind runKindOf(const QTextCharFormat& format)
{
    return static_cast<RunKind>(format.intProperty(RunKindProperty));
}

QString objectText(const QTextCharFormat& format)
{
    return format.stringProperty(ObjectTextProperty);
}

QString objectTarget(const QTextCharFormat& format)
{
    return format.stringProperty(ObjectTargetProperty);
}

QString standsFor(const QTextCharFormat& format)
{
    return format.stringProperty(StandsForProperty);
}

void storeStandsFor(QTextCharFormat& format, const QString& character)
{
    store(format, StandsForProperty, character);
}

void storeStyle(QTextCharFormat& format, const RunStyle& style)
{
    int flags = 0;
    flags |= style.bold ? Bold : 0;
    flags |= style.italic ? Italic : 0;
    flags |= style.strikethrough ? Strikethrough : 0;
    flags |= style.code ? Code : 0;
    flags |= style.attributes.underline ? Underline : 0;
    flags |= style.attributes.superscript ? Superscript : 0;
    flags |= style.attributes.subscript ? Subscript : 0;
    store(format, RunFlagsProperty, flags);
    store(format, LinkProperty, style.link);
    store(format, LinkTitleProperty, style.linkTitle);
    store(format, ColorProperty, style.attributes.color);
    store(format, BackgroundProperty, style.attributes.background);
    store(format, FontProperty, style.attributes.font);
    store(format, SizeProperty, style.attributes.size);
}

void storeKind(QTextCharFormat& format, const markup::Run& run)
{
    store(format, RunKindProperty, static_cast<int>(run.kind));
    if (run.kind != RunKind::Image && run.kind != RunKind::FootnoteReference)
        return;
    store(format, ObjectTextProperty, run.text);
    store(format, ObjectTargetProperty, run.target);
    format.setObjectType(run.kind == RunKind::Image ? ImageObject : FootnoteObject);
}

std::vector<ColumnAlignment> columnsOf(const QTextFormat& tableFormat)
{
    std::vector<ColumnAlignment> columns;
    for (const QChar letter : tableFormat.stringProperty(ColumnsProperty))
        columns.push_back(static_cast<ColumnAlignment>(letter.digitValue()));
    return columns;
}

void storeColumns(QTextFormat& tableFormat, const std::vector<ColumnAlignment>& columns)
{
    QString letters;
    for (const ColumnAlignment column : columns)
        letters += QString::number(static_cast<int>(column));
    store(tableFormat, ColumnsProperty, letters);
}

} // namespace tw::desktop::manuscript::rich
