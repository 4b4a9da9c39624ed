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

/** Finds what counts as absent. Called with places that never get smaller. */
class Absences
{
public:
    explicit Absences(QStringView body)
        : m_body(body)
    {}

    /** The end of the group or footnote reference that begins at the brace or bracket; its place when none
     * does. */
    [[nodiscard]] qsizetype endAfter(qsizetype place)
    {
        const QStringView rest = m_body.sliced(place);
        if (rest.startsWith(markup::groupStart))
            return after(place, place + markup::groupStart.size(), u'}', m_hasBraces);
        if (rest.startsWith(u"[^") && rest.size() > 2 && rest[2] != u']')
            return after(place, place + 2, u']', m_hasBrackets);
        return place;
    }

private:
    [[nodiscard]] qsizetype after(qsizetype place, qsizetype from, QChar end, bool& isThere) const
    {
        const qsizetype found = isThere ? m_body.indexOf(end, from) : -1;
        // What is not there now is not there later: looking again for every start would take forever.
        isThere = found >= 0;
        return isThere ? found + 1 : place;
    }

    QStringView m_body;
    bool m_hasBraces = true;
    bool m_hasBrackets = true;
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
        if (character == u'{' || character == u'[') {
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
