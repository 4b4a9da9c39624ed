#pragma once

#include <QStringView>

#include <algorithm>
#include <array>
#include <string_view>

namespace tw::core::document::markup {

/** A few characters that long texts are searched for, four places at a time. */
class CharacterSet
{
public:
    /** The characters must outlive the set. */
    explicit constexpr CharacterSet(std::u16string_view characters)
        : m_characters(characters)
    {
        for (const char16_t character : characters)
            m_lowBytes[character & 0xff] = 1;
    }

    [[nodiscard]] constexpr bool contains(QChar character) const
    {
        return mayContain(character) &&
               std::ranges::find(m_characters, character.unicode()) != m_characters.end();
    }

    /** The offset of the first of them from `from` on; the end when there is none. */
    [[nodiscard]] qsizetype findIn(QStringView text, qsizetype from = 0) const
    {
        constexpr qsizetype stride = 4;
        for (; from + stride <= text.size(); from += stride) {
            const int hits = mayContain(text[from]) | mayContain(text[from + 1]) |
                             mayContain(text[from + 2]) | mayContain(text[from + 3]);
            if (hits != 0 && std::ranges::any_of(text.sliced(from, stride), [this](QChar character) {
                    return contains(character);
                }))
                break;
        }
        while (from < text.size() && !contains(text[from]))
            ++from;
        return from;
    }

private:
    [[nodiscard]] constexpr quint8 mayContain(QChar character) const
    {
        return m_lowBytes[character.unicode() & 0xff];
    }

    std::u16string_view m_characters;
    /** By the lower half of a code: 1 for what a character of the set may have. */
    std::array<quint8, 256> m_lowBytes{};
};

} // namespace tw::core::document::markup
