#include "core/document/markup/BodyWords.h"

#include "core/document/WordCount.h"
#include "core/document/markup/Attributes.h"
#include "core/document/markup/Characters.h"
#include "core/document/markup/LegacyHtml.h"
#include "core/document/markup/PlainText.h"

namespace tw::core::document::markup {

namespace {

bool isEmphasisMark(QChar character)
{
    return character == u'*' || character == u'_';
}

/** Begins what has to be read to know what of it is prose. */
bool beginsMarkup(QChar character)
{
    switch (character.unicode()) {
    case u'\\':
    case u'&':
    case u'`':
    case u'~':
    case u'<':
    case u'[':
    case u'{':
    case QChar::ObjectReplacementCharacter:
        return true;
    default:
        return false;
    }
}

/** Goes through a body paragraph by paragraph; what is not plain is read in full. */
class BodyWordCounter
{
public:
    explicit BodyWordCounter(QStringView body)
        : m_body(body)
    {}

    [[nodiscard]] qint64 count()
    {
        qint64 words = 0;
        while (m_position < m_body.size()) {
            const qsizetype start = m_position;
            const qint64 plain = countPlainParagraph();
            words += plain >= 0 ? plain : countParagraphFrom(start);
        }
        return words;
    }

private:
    /** Up to the next blank line; -1 when there is markup in it that cannot be passed over. */
    [[nodiscard]] qint64 countPlainParagraph()
    {
        WordTally tally;
        bool isLineEmpty = true;
        for (; m_position < m_body.size(); ++m_position) {
            const QChar character = m_body[m_position];
            if (isWordCharacter(character)) {
                if (isLineEmpty && isListNumber())
                    return -1;
                isLineEmpty = false;
                tally.addWordCharacter();
                continue;
            }
            if (beginsMarkup(character) || (isEmphasisMark(character) && isWithinWord()))
                return -1;
            tally.addOther(character);
            if (isLineEnd(character) && endsParagraph())
                break;
            isLineEmpty = isLineEnd(character) || (isLineEmpty && character.isSpace());
        }
        return tally.words();
    }

    /** At the first sign of a line. */
    [[nodiscard]] bool isListNumber() const
    {
        qsizetype end = m_position;
        while (end < m_body.size() && isAsciiDigit(m_body[end]))
            ++end;
        return end > m_position && end < m_body.size() && (m_body[end] == u'.' || m_body[end] == u')');
    }

    /** Marks between what may be one word without them. */
    [[nodiscard]] bool isWithinWord() const
    {
        qsizetype before = m_position - 1;
        while (before >= 0 && isEmphasisMark(m_body[before]))
            --before;
        qsizetype after = m_position + 1;
        while (after < m_body.size() && isEmphasisMark(m_body[after]))
            ++after;
        const auto mayJoin = [this](qsizetype place) {
            return place >= 0 && place < m_body.size() &&
                   (isWordCharacter(m_body[place]) || joinsWords(m_body[place]));
        };
        return mayJoin(before) && mayJoin(after);
    }

    /** At a line end: passes over it and what it is blank lines with. */
    [[nodiscard]] bool endsParagraph()
    {
        qsizetype next = m_position + 1;
        if (m_body[m_position] == u'\r' && next < m_body.size() && m_body[next] == u'\n')
            ++next;
        if (next < m_body.size() && !isLineEnd(m_body[next]))
            return false;
        while (next < m_body.size() && isLineEnd(m_body[next]))
            ++next;
        m_position = next;
        return true;
    }

    [[nodiscard]] qint64 countParagraphFrom(qsizetype start)
    {
        while (m_position < m_body.size() && !(isLineEnd(m_body[m_position]) && endsParagraph()))
            ++m_position;
        const QStringView paragraph = m_body.sliced(start, m_position - start);
        // Fences and groups may reach over blank lines.
        const bool mayGoOn = paragraph.contains(u"```") || paragraph.contains(u"~~~") ||
                             paragraph.lastIndexOf(u'}') < paragraph.lastIndexOf(groupStart) ||
                             paragraph.lastIndexOf(u']') < paragraph.lastIndexOf(u"[^");
        if (!mayGoOn)
            return countWords(PlainText(paragraph).text());
        m_position = m_body.size();
        return countWords(PlainText(m_body.sliced(start)).text());
    }

    QStringView m_body;
    qsizetype m_position = 0;
};

} // namespace

qint64 countBodyWords(QStringView markdown)
{
    return BodyWordCounter(markdown).count();
}

qint64 countBodyWords(const DocumentBody& body)
{
    return body.format == BodyFormat::Html ? countBodyWords(htmlToMarkdown(body.text))
                                           : countBodyWords(QStringView(body.text));
}

} // namespace tw::core::document::markup
