// What the readers and writers of the markup agree on about single characters.
#pragma once

#include <QStringView>

namespace tw::core::document::markup {

/** White space within a line. */
[[nodiscard]] constexpr bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t' || character == u'\v' || character == u'\f';
}

[[nodiscard]] constexpr bool isLineEnd(QChar character)
{
    return character == u'\n' || character == u'\r';
}

/** The characters that a backslash takes the meaning from. */
[[nodiscard]] constexpr bool isAsciiPunctuation(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= u'!' && code <= u'/') || (code >= u':' && code <= u'@') ||
           (code >= u'[' && code <= u'`') || (code >= u'{' && code <= u'~');
}

[[nodiscard]] constexpr bool isAsciiDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

[[nodiscard]] constexpr bool isAsciiLetter(QChar character)
{
    const char16_t lower = character.unicode() | 0x20;
    return lower >= u'a' && lower <= u'z';
}

/** The offset of the first character from `from` on that is none of those; the end when all are. */
template <class Predicate>
[[nodiscard]] constexpr qsizetype skip(QStringView text, qsizetype from, Predicate isSkipped)
{
    while (from < text.size() && isSkipped(text[from]))
        ++from;
    return from;
}

} // namespace tw::core::document::markup
