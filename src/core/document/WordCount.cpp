#include "core/document/WordCount.h"

#include "core/document/markup/Attributes.h"

#include <QChar>

namespace tw::core::document {

namespace {

/** Where a character stands next, for places that never get smaller: all of them together cost one pass. */
class NextPlace
{
public:
    NextPlace(QStringView text, QChar character)
        : m_text(text)
        , m_character(character)
    {}

    /** At or behind `from`; the end of the text when there is none. */
    [[nodiscard]] qsizetype after(qsizetype from)
    {
        if (m_next < from) {
            m_next = m_text.indexOf(m_character, from);
            if (m_next < 0)
                m_next = m_text.size();
        }
        return m_next;
    }

private:
    QStringView m_text;
    QChar m_character;
    qsizetype m_next = -1;
};

/** Finds what counts as absent. Called with places that never get smaller. */
class Absences
{
public:
    explicit Absences(QStringView text)
        : m_text(text)
        , m_brace(text, u'}')
        , m_bracket(text, u']')
    {}

    /** The end of what begins at the place and is not to be counted; the place when nothing does. */
    [[nodiscard]] qsizetype endAfter(qsizetype place)
    {
        const QStringView rest = m_text.sliced(place);
        if (rest.startsWith(markup::groupStart))
            return behind(m_brace.after(place + markup::groupStart.size()), place);
        if (rest.startsWith(u"[^") && rest.size() > 2 && rest[2] != u']')
            return behind(m_bracket.after(place + 2), place);
        return place;
    }

private:
    /** Behind the character found, or `place` when none was. */
    [[nodiscard]] qsizetype behind(qsizetype found, qsizetype place) const
    {
        return found < m_text.size() ? found + 1 : place;
    }

    QStringView m_text;
    NextPlace m_brace;
    NextPlace m_bracket;
};

} // namespace

qint64 countWords(QStringView text)
{
    WordTally tally;
    Absences absences(text);
    for (qsizetype index = 0; index < text.size(); ++index) {
        const QChar character = text[index];
        if (isWordCharacter(character)) {
            tally.addWordCharacter();
            continue;
        }
        if (character == QChar::ObjectReplacementCharacter)
            continue;
        if (character == u'{' || character == u'[') {
            if (const qsizetype end = absences.endAfter(index); end > index) {
                index = end - 1;
                continue;
            }
        }
        tally.addOther(character);
    }
    return tally.words();
}

} // namespace tw::core::document
