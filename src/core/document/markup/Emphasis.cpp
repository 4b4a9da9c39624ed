#include "core/document/markup/Emphasis.h"

#include "core/document/markup/Characters.h"

#include <algorithm>
#include <array>

namespace tw::core::document::markup {

namespace {

enum class Neighbour
{
    Space,
    Punctuation,
    Other,
};

Neighbour neighbourOf(char32_t code)
{
    if (QChar::isSpace(code))
        return Neighbour::Space;
    if (QChar::isPunct(code) || (code < 0x80 && isAsciiPunctuation(QChar(static_cast<char16_t>(code)))))
        return Neighbour::Punctuation;
    return Neighbour::Other;
}

Neighbour neighbourBefore(QStringView text, qsizetype start)
{
    if (start == 0)
        return Neighbour::Space;
    const QChar last = text[start - 1];
    return last.isLowSurrogate() && start > 1 && text[start - 2].isHighSurrogate()
               ? neighbourOf(QChar::surrogateToUcs4(text[start - 2], last))
               : neighbourOf(last.unicode());
}

Neighbour neighbourAfter(QStringView text, qsizetype end)
{
    if (end == text.size())
        return Neighbour::Space;
    const QChar first = text[end];
    return first.isHighSurrogate() && end + 1 < text.size() && text[end + 1].isLowSurrogate()
               ? neighbourOf(QChar::surrogateToUcs4(first, text[end + 1]))
               : neighbourOf(first.unicode());
}

/** Closers that look for the same openers: what one did not find the next need not look for. */
constexpr int closerClasses = 13;

int classOf(const Delimiter& closer)
{
    if (closer.mark == u'~')
        return 0;
    return 1 + (closer.mark == u'_' ? 6 : 0) + (closer.canOpen ? 3 : 0) + static_cast<int>(closer.length % 3);
}

bool fits(const Delimiter& opener, const Delimiter& closer)
{
    if (opener.mark != closer.mark || !opener.canOpen)
        return false;
    if (closer.mark == u'~')
        return true;
    // Marks that may do both are paired only when their lengths cannot mean something else.
    return !(
        (closer.canOpen || opener.canClose) && closer.length % 3 != 0 &&
        (opener.length + closer.length) % 3 == 0);
}

} // namespace

int EmphasisMatcher::add(QStringView text, qsizetype start, qsizetype length)
{
    const Neighbour before = neighbourBefore(text, start);
    const Neighbour after = neighbourAfter(text, start + length);
    const bool isLeft =
        after != Neighbour::Space && (after != Neighbour::Punctuation || before != Neighbour::Other);
    const bool isRight =
        before != Neighbour::Space && (before != Neighbour::Punctuation || after != Neighbour::Other);
    Delimiter delimiter;
    delimiter.mark = text[start];
    delimiter.length = length;
    delimiter.left = length;
    const bool isWithinWords = delimiter.mark == u'_';
    delimiter.canOpen = isLeft && (!isWithinWords || !isRight || before == Neighbour::Punctuation);
    delimiter.canClose = isRight && (!isWithinWords || !isLeft || after == Neighbour::Punctuation);
    delimiter.previous = m_last;
    const auto index = static_cast<int>(m_delimiters.size());
    if (m_last >= 0)
        edit(m_last).next = index;
    m_delimiters.push_back(delimiter);
    return m_last = index;
}

void EmphasisMatcher::matchAfter(int bottom)
{
    std::array<int, closerClasses> bottoms;
    bottoms.fill(bottom);
    int closer = m_last;
    if (closer <= bottom)
        return;
    while (at(closer).previous > bottom)
        closer = at(closer).previous;
    while (closer >= 0) {
        const Delimiter& delimiter = at(closer);
        const int next = delimiter.next;
        if (!delimiter.canClose) {
            closer = next;
            continue;
        }
        int& lowest = bottoms[static_cast<std::size_t>(classOf(delimiter))];
        if (const int opener = findOpener(closer, lowest); opener >= 0) {
            pair(opener, closer);
            if (at(closer).left == 0) {
                remove(closer);
                closer = next;
            }
        } else {
            lowest = closer - 1;
            if (!delimiter.canOpen)
                remove(closer);
            closer = next;
        }
    }
    while (m_last > bottom)
        remove(m_last);
}

int EmphasisMatcher::findOpener(int closer, int bottom) const
{
    int opener = at(closer).previous;
    while (opener > bottom && !fits(at(opener), at(closer)))
        opener = at(opener).previous;
    return opener > bottom ? opener : -1;
}

void EmphasisMatcher::pair(int opener, int closer)
{
    while (at(closer).previous > opener)
        remove(at(closer).previous);
    Delimiter& first = edit(opener);
    Delimiter& second = edit(closer);
    const qsizetype used = std::min<qsizetype>({first.left, second.left, 2});
    if (first.mark == u'~') {
        ++first.struckOpened;
        ++second.struckClosed;
    } else if (used == 2) {
        ++first.boldOpened;
        ++second.boldClosed;
    } else {
        ++first.italicOpened;
        ++second.italicClosed;
    }
    first.left -= used;
    second.left -= used;
    if (first.left == 0)
        remove(opener);
}

void EmphasisMatcher::remove(int index)
{
    const Delimiter& delimiter = at(index);
    if (delimiter.previous >= 0)
        edit(delimiter.previous).next = delimiter.next;
    if (delimiter.next >= 0)
        edit(delimiter.next).previous = delimiter.previous;
    else
        m_last = delimiter.previous;
}

} // namespace tw::core::document::markup
