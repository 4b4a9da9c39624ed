#pragma once

#include <QStringView>

namespace tw::core::document {

/**
 * The words of prose as a writer counts them: runs of letters and digits, together with the apostrophes and
 * hyphens inside them; dashes part words. Attribute groups, footnote references and stand-ins of pictures are
 * as if they were not there. One pass, without allocations. For Markdown see markup::countBodyWords().
 */
[[nodiscard]] qint64 countWords(QStringView prose);

[[nodiscard]] inline bool isWordCharacter(QChar character)
{
    // Halves of a surrogate pair count as letters: the scripts beyond the first plane are letters all.
    return character.isLetterOrNumber() || character.isMark() || character.isSurrogate();
}

/** Inside a word, as a hyphen; not at its ends. */
[[nodiscard]] inline bool joinsWords(QChar character)
{
    return character == u'\'' || character == u'\u2019' || character == u'-' || character == u'\u2010' ||
           character == u'\u2011' || character == u'_';
}

/** Counts the words of what it is given character by character. */
class WordTally
{
public:
    void addWordCharacter()
    {
        m_words += m_place == Place::Outside ? 1 : 0;
        m_place = Place::InWord;
    }
    /** Any that is no isWordCharacter(). */
    void addOther(QChar character)
    {
        m_place = m_place == Place::InWord && joinsWords(character) ? Place::AfterJoint : Place::Outside;
    }
    [[nodiscard]] qint64 words() const { return m_words; }

private:
    enum class Place
    {
        Outside,
        InWord,
        /** After a hyphen or an apostrophe that joins, if a word goes on behind it. */
        AfterJoint,
    };

    qint64 m_words = 0;
    Place m_place = Place::Outside;
};

} // namespace tw::core::document
