#include "core/document/WordCount.h"

#include "core/document/markup/Attributes.h"

#include <QChar>

namespace tw::core::document {

namespace {

bool isWordCharacter(QChar character)
{
    // Halves of a surrogate pair count as letters: the scripts beyond the first plane are letters all.
    return character.isLetterOrNumber() || character.isMark() || character.isSurrogate();
}

bool joinsWords(QChar character)
{
    return character == u'\'' || character == u'\u2019' || character == u'-' || character == u'\u2010' ||
           character == u'\u2011' || character == u'_';
}

/** Where a character stands next, for places that never get smaller: all of them together cost one pass. */
class NextPlace
{
public:
    NextPlace(QStringView body, QChar character)
        : m_body(body)
        , m_character(character)
    {}

    /** At or behind `from`; the end of the body when there is none. */
    [[nodiscard]] qsizetype after(qsizetype from)
    {
        if (m_next < from) {
            m_next = m_body.indexOf(m_character, from);
            if (m_next < 0)
                m_next = m_body.size();
        }
        return m_next;
    }

private:
    QStringView m_body;
    QChar m_character;
    qsizetype m_next = -1;
};

/** Finds what counts as absent. Called with places that never get smaller. */
class Absences
{
public:
    explicit Absences(QStringView body)
        : m_body(body)
        , m_brace(body, u'}')
        , m_bracket(body, u']')
        , m_parenthesis(body, u')')
        , m_line(body, u'\n')
    {}

    /** The end of what begins at the place and is not to be counted; the place when nothing does. */
    [[nodiscard]] qsizetype endAfter(qsizetype place)
    {
        const QStringView rest = m_body.sliced(place);
        if (rest.startsWith(markup::groupStart))
            return behind(m_brace.after(place + markup::groupStart.size()), place);
        if (rest.startsWith(u"[^") && rest.size() > 2 && rest[2] != u']')
            return behind(m_bracket.after(place + 2), place);
        if (rest.startsWith(u"]("))
            return endOfTarget(place + 2, place);
        if (rest.startsWith(u"![")) {
            const qsizetype end = m_bracket.after(place + 2);
            if (m_body.sliced(end).startsWith(u"]("))
                return endOfTarget(end + 2, place);
        }
        return place;
    }

private:
    /** Behind the character found, or `place` when none was. */
    [[nodiscard]] qsizetype behind(qsizetype found, qsizetype place) const
    {
        return found < m_body.size() ? found + 1 : place;
    }

    /** Where a link or an image leads to is no prose; it ends on its line. */
    [[nodiscard]] qsizetype endOfTarget(qsizetype from, qsizetype place)
    {
        const qsizetype end = m_parenthesis.after(from);
        return m_line.after(place) < end ? place : behind(end, place);
    }

    QStringView m_body;
    NextPlace m_brace;
    NextPlace m_bracket;
    NextPlace m_parenthesis;
    NextPlace m_line;
};

} // namespace

qint64 countWords(QStringView body)
{
    enum class Place
    {
        Outside,
        InWord,
        /** After a hyphen or an apostrophe that joins, if a word goes on behind it. */
        AfterJoint,
    };
    qint64 words = 0;
    Place place = Place::Outside;
    Absences absences(body);
    for (qsizetype index = 0; index < body.size(); ++index) {
        const QChar character = body[index];
        if (isWordCharacter(character)) {
            words += place == Place::Outside ? 1 : 0;
            place = Place::InWord;
            continue;
        }
        if (character == u'{' || character == u'[' || character == u']' || character == u'!') {
            if (const qsizetype end = absences.endAfter(index); end > index) {
                index = end - 1;
                continue;
            }
        }
        place = place == Place::InWord && joinsWords(character) ? Place::AfterJoint : Place::Outside;
    }
    return words;
}

} // namespace tw::core::document
