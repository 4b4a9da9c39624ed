// Styles of text and shapes of blocks.
#include "desktop/manuscript/rich/RichPage.h"

#include "desktop/manuscript/TypingBursts.h"
#include "desktop/manuscript/rich/ParagraphChange.h"

#include <QTextBlock>
#include <QTextTable>

#include <algorithm>
#include <array>

namespace tw::desktop::manuscript::rich {

using markup::BlockKind;
using markup::RunStyle;

namespace {

/** Of what is indented here; a file may have it deeper. */
constexpr qint32 deepestIndent = 8;

bool isOn(const RunStyle& style, TextToggle toggle)
{
    switch (toggle) {
    case TextToggle::Bold:
        return style.bold;
    case TextToggle::Italic:
        return style.italic;
    case TextToggle::Underline:
        return style.attributes.underline;
    case TextToggle::Strikethrough:
        return style.strikethrough;
    case TextToggle::Superscript:
        return style.attributes.superscript;
    case TextToggle::Subscript:
        return style.attributes.subscript;
    case TextToggle::Code:
        return style.code;
    }
    return false;
}

void set(RunStyle& style, TextToggle toggle, bool on)
{
    switch (toggle) {
    case TextToggle::Bold:
        style.bold = on;
        break;
    case TextToggle::Italic:
        style.italic = on;
        break;
    case TextToggle::Underline:
        style.attributes.underline = on;
        break;
    case TextToggle::Strikethrough:
        style.strikethrough = on;
        break;
    case TextToggle::Superscript:
        style.attributes.superscript = on;
        style.attributes.subscript = false;
        break;
    case TextToggle::Subscript:
        style.attributes.subscript = on;
        style.attributes.superscript = false;
        break;
    case TextToggle::Code:
        style.code = on;
        break;
    }
}

int numberOf(const QString& marker)
{
    qsizetype digits = 0;
    while (digits < marker.size() && marker[digits].isDigit())
        ++digits;
    return QStringView(marker).first(digits).toInt();
}

QString withNumber(const QString& marker, int number)
{
    return QString::number(number) + (marker.endsWith(u')') ? u')' : u'.');
}

bool isItemBlock(const QTextBlock& block)
{
    return block.isValid() && isItem(kindOf(block.blockFormat()));
}

} // namespace

void RichPage::asStep(const QString& label, const std::function<void(QTextCursor& cursor)>& edit)
{
    if (isReadOnly())
        return;
    m_bursts->applyAsStep(label, [&] {
        QTextCursor cursor = textCursor();
        cursor.beginEditBlock();
        edit(cursor);
        cursor.endEditBlock();
        setTextCursor(cursor);
        ensureCursorVisible();
    });
}

RunStyle RichPage::currentStyle() const
{
    const QTextCursor cursor = textCursor();
    if (!cursor.hasSelection())
        return styleOf(currentCharFormat());
    QTextCursor first(cursor);
    first.setPosition(std::min(cursor.selectionStart() + 1, document()->characterCount() - 1));
    return styleOf(first.charFormat());
}

bool RichPage::hasStyle(TextToggle toggle) const
{
    return isOn(currentStyle(), toggle);
}

void RichPage::toggleStyle(TextToggle toggle, const QString& label)
{
    const bool on = !hasStyle(toggle);
    changeStyle(label, [toggle, on](RunStyle& style) { set(style, toggle, on); });
}

void RichPage::changeStyle(const QString& label, const std::function<void(RunStyle&)>& change)
{
    if (!textCursor().hasSelection()) {
        RunStyle style = currentStyle();
        change(style);
        setCurrentCharFormat(m_formats.text(style, currentShape()));
        return;
    }
    struct Change
    {
        int position;
        int end;
        QTextCharFormat format;
    };
    std::vector<Change> changes;
    const int start = textCursor().selectionStart();
    const int end = textCursor().selectionEnd();
    for (QTextBlock block = document()->findBlock(start); block.isValid() && block.position() < end;
         block = block.next()) {
        const BlockShape shape = shapeOf(block.blockFormat());
        if (shape.kind == BlockKind::Code)
            continue;
        for (auto iterator = block.begin(); !iterator.atEnd(); ++iterator) {
            const QTextFragment fragment = iterator.fragment();
            const int from = std::max(start, fragment.position());
            const int to = std::min(end, fragment.position() + fragment.length());
            if (from >= to)
                continue;
            const QTextCharFormat old = fragment.charFormat();
            RunStyle style = styleOf(old);
            change(style);
            changes.push_back(
                {from, to,
                 m_formats.run({runKindOf(old), objectText(old), objectTarget(old), style}, shape)});
        }
    }
    asStep(label, [&](QTextCursor&) {
        for (const Change& each : changes) {
            QTextCursor cursor(document());
            cursor.setPosition(each.position);
            cursor.setPosition(each.end, QTextCursor::KeepAnchor);
            cursor.setCharFormat(each.format);
        }
    });
}

BlockShape RichPage::currentShape() const
{
    return shapeOf(textCursor().blockFormat());
}

std::vector<QTextBlock> RichPage::selectedBlocks() const
{
    const QTextCursor cursor = textCursor();
    std::vector<QTextBlock> blocks;
    QTextBlock block = document()->findBlock(cursor.selectionStart());
    do {
        blocks.push_back(block);
        block = block.next();
    } while (block.isValid() && block.position() < cursor.selectionEnd());
    return blocks;
}

void RichPage::changeBlocks(const QString& label, const std::function<void(BlockShape&)>& change)
{
    asStep(label, [&](QTextCursor&) {
        for (const QTextBlock& block : selectedBlocks()) {
            BlockShape shape = shapeOf(block.blockFormat());
            // What stands in a table is a cell whatever happens.
            if (shape.kind == BlockKind::Table)
                continue;
            const BlockShape before = shape;
            change(shape);
            if (shape != before)
                reshapeBlock(block, shape, m_formats);
            if (isItem(shape.kind) || isItem(before.kind))
                renumber(block);
        }
    });
}

void RichPage::toggleList(BlockKind itemKind, const QString& label)
{
    const std::vector<QTextBlock> blocks = selectedBlocks();
    const bool areItems = std::ranges::all_of(
        blocks, [itemKind](const QTextBlock& block) { return kindOf(block.blockFormat()) == itemKind; });
    changeBlocks(label, [itemKind, areItems](BlockShape& shape) {
        const markup::BlockAttributes attributes = shape.attributes;
        const int level = isItem(shape.kind) ? shape.level : 0;
        shape = {};
        shape.attributes = attributes;
        if (areItems)
            return;
        shape.kind = itemKind;
        shape.level = level;
        shape.marker = itemKind == BlockKind::BulletItem ? QStringLiteral("-") : QStringLiteral("1.");
    });
}

void RichPage::indentBlocks(int step)
{
    const bool isList = isItem(currentShape().kind);
    const QString label = isList ? (step > 0 ? tr("Nest list item") : tr("Lift list item"))
                                 : (step > 0 ? tr("Indent paragraph") : tr("Outdent paragraph"));
    changeBlocks(label, [step](BlockShape& shape) {
        if (isItem(shape.kind)) {
            shape.level = std::clamp(shape.level + step, 0, markup::deepestLevel);
            shape.indent = -1;
        } else if (shape.kind == BlockKind::Paragraph || shape.kind == BlockKind::Heading) {
            qint32& indent = shape.attributes.indent;
            const qint32 room = std::max(deepestIndent, indent) - indent;
            indent = std::max(0, indent + std::min(step, room));
        }
    });
}

void RichPage::renumber(const QTextBlock& around)
{
    QTextBlock first = around;
    while (isItemBlock(first.previous()))
        first = first.previous();
    if (!isItemBlock(first))
        first = around.next();
    struct Last
    {
        BlockKind kind = BlockKind::Paragraph;
        int number = 0;
    };
    std::array<Last, markup::deepestLevel + 1> last;
    // Depths are read from the indents of the whole list, so that one without its own takes those of all.
    bool hasNewDepth = false;
    for (QTextBlock block = first; isItemBlock(block); block = block.next()) {
        const BlockShape shape = shapeOf(block.blockFormat());
        hasNewDepth = hasNewDepth || shape.indent < 0;
    }
    for (QTextBlock block = first; isItemBlock(block); block = block.next()) {
        const BlockShape before = shapeOf(block.blockFormat());
        BlockShape shape = before;
        const auto level = static_cast<std::size_t>(std::clamp(shape.level, 0, markup::deepestLevel));
        std::fill(last.begin() + static_cast<std::ptrdiff_t>(level) + 1, last.end(), Last());
        if (shape.kind == BlockKind::NumberedItem) {
            const int number =
                last[level].kind == shape.kind ? last[level].number + 1 : numberOf(shape.marker);
            shape.marker = withNumber(shape.marker, number);
        }
        last[level] = {shape.kind, numberOf(shape.marker)};
        if (hasNewDepth)
            shape.indent = -1;
        if (shape != before)
            reshapeBlock(block, shape, m_formats);
    }
}

} // namespace tw::desktop::manuscript::rich
