#pragma once

#include <QChar>
#include <QStringView>

#include <array>

namespace tw::app::style {

/** What a character is to the style rules. */
enum CharacterClass : quint8
{
    Letter = 1,
    /** Letters, numbers and the underscore: what words are made of. */
    WordCharacter = 2,
    WhiteSpace = 4,
    /** A full stop, exclamation or question mark. */
    SentenceEnd = 8,
};

/** A character of a text: its classes, and how many code units it takes. */
struct ClassifiedCharacter
{
    quint8 classes = 0;
    qsizetype units = 1;
};

/**
 * The classes of all characters, by the Unicode database. Halves of surrogate pairs that stand alone have
 * none. Built once a process; may be read from any thread.
 */
class CharacterClasses
{
public:
    [[nodiscard]] static const CharacterClasses& shared();

    [[nodiscard]] ClassifiedCharacter at(QStringView text, qsizetype index) const
    {
        const QChar unit = text[index];
        if (!unit.isHighSurrogate()) [[likely]]
            return {m_classes[unit.unicode()], 1};
        return ofPair(text, index);
    }

private:
    CharacterClasses();
    [[nodiscard]] static ClassifiedCharacter ofPair(QStringView text, qsizetype index);

    std::array<quint8, 0x10000> m_classes;
};

} // namespace tw::app::style
