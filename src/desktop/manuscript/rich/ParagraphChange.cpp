#include "desktop/manuscript/rich/ParagraphChange.h"

#include "desktop/manuscript/rich/RichFormats.h"

#include <algorithm>

namespace tw::desktop::manuscript::rich {

namespace {

/** Text of several blocks, with the number of its format for every character. */
struct FlatText
{
    QString text;
    std::vector<int> formats;
};

constexpr int separatorFormat = -1;

class FormatNumbers
{
public:
    int numberOf(const QTextCharFormat& format)
    {
        const auto found = std::ranges::find(m_formats, format);
        if (found != m_formats.end())
            return static_cast<int>(found - m_formats.begin());
        m_formats.push_back(format);
        return static_cast<int>(m_formats.size()) - 1;
    }

    [[nodiscard]] const QTextCharFormat& format(int number) const
    {
        return m_formats[static_cast<std::size_t>(number)];
    }

private:
    std::vector<QTextCharFormat> m_formats;
};

void append(FlatText& flat, const QString& text, int format)
{
    flat.text += text;
    flat.formats.insert(flat.formats.end(), static_cast<std::size_t>(text.size()), format);
}

FlatText flatten(QTextBlock block, int count, FormatNumbers& numbers)
{
    FlatText flat;
    for (int index = 0; index < count; ++index, block = block.next()) {
        if (index > 0)
            append(flat, QString(QChar::ParagraphSeparator), separatorFormat);
        for (auto iterator = block.begin(); !iterator.atEnd(); ++iterator)
            append(flat, iterator.fragment().text(), numbers.numberOf(iterator.fragment().charFormat()));
    }
    return flat;
}

FlatText flatten(const std::vector<RichParagraph>& paragraphs, FormatNumbers& numbers)
{
    FlatText flat;
    for (std::size_t index = 0; index < paragraphs.size(); ++index) {
        if (index > 0)
            append(flat, QString(QChar::ParagraphSeparator), separatorFormat);
        for (const TextPiece& piece : paragraphs[index].pieces)
            append(flat, piece.text, numbers.numberOf(piece.format));
    }
    return flat;
}

bool isSameAt(const FlatText& left, qsizetype leftIndex, const FlatText& right, qsizetype rightIndex)
{
    return left.text[leftIndex] == right.text[rightIndex] &&
           left.formats[static_cast<std::size_t>(leftIndex)] ==
               right.formats[static_cast<std::size_t>(rightIndex)];
}

void insert(
    QTextCursor& cursor, const FlatText& flat, qsizetype from, qsizetype to, const FormatNumbers& numbers)
{
    while (from < to) {
        const int format = flat.formats[static_cast<std::size_t>(from)];
        if (format == separatorFormat) {
            cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
            ++from;
            continue;
        }
        qsizetype end = from + 1;
        while (end < to && flat.formats[static_cast<std::size_t>(end)] == format)
            ++end;
        cursor.insertText(flat.text.mid(from, end - from), numbers.format(format));
        from = end;
    }
}

} // namespace

void changeParagraphs(const QTextBlock& first, int count, const std::vector<RichParagraph>& wanted)
{
    FormatNumbers numbers;
    const FlatText present = flatten(first, count, numbers);
    const FlatText target = flatten(wanted, numbers);
    const qsizetype shared = std::min(present.text.size(), target.text.size());
    qsizetype start = 0;
    while (start < shared && isSameAt(present, start, target, start))
        ++start;
    qsizetype tail = 0;
    while (tail < shared - start &&
           isSameAt(present, present.text.size() - 1 - tail, target, target.text.size() - 1 - tail))
        ++tail;

    const int position = first.position();
    QTextCursor cursor(first);
    cursor.beginEditBlock();
    cursor.setPosition(position + static_cast<int>(start));
    cursor.setPosition(position + static_cast<int>(present.text.size() - tail), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    insert(cursor, target, start, target.text.size() - tail, numbers);
    QTextBlock block = first.document()->findBlock(position);
    for (const RichParagraph& paragraph : wanted) {
        QTextCursor format(block);
        if (block.blockFormat() != paragraph.format)
            format.setBlockFormat(paragraph.format);
        if (block.charFormat() != paragraph.textFormat)
            format.setBlockCharFormat(paragraph.textFormat);
        block = block.next();
    }
    cursor.endEditBlock();
}

void reshapeBlock(const QTextBlock& block, const BlockShape& shape, const RichFormats& formats)
{
    QTextCursor cursor(block);
    QTextBlockFormat format = formats.block(shape);
    if (shape.kind == markup::BlockKind::Table)
        format.setAlignment(block.blockFormat().alignment());
    if (block.blockFormat() != format)
        cursor.setBlockFormat(format);
    if (const QTextCharFormat text = formats.text({}, shape); block.charFormat() != text)
        cursor.setBlockCharFormat(text);
    struct Change
    {
        int position;
        int length;
        QTextCharFormat format;
    };
    // A change of format makes other fragments.
    std::vector<Change> changes;
    for (auto iterator = block.begin(); !iterator.atEnd(); ++iterator) {
        const QTextFragment fragment = iterator.fragment();
        const QTextCharFormat old = fragment.charFormat();
        QTextCharFormat restyled = formats.restyled(old, shape);
        if (restyled != old)
            changes.push_back({fragment.position(), fragment.length(), std::move(restyled)});
    }
    for (const Change& change : changes) {
        cursor.setPosition(change.position);
        cursor.setPosition(change.position + change.length, QTextCursor::KeepAnchor);
        cursor.setCharFormat(change.format);
    }
}

void restyleBlock(const QTextBlock& block, const RichFormats& formats)
{
    reshapeBlock(block, shapeOf(block.blockFormat()), formats);
}

} // namespace tw::desktop::manuscript::rich
