#include "core/document/markup/TextEscaping.h"

#include "core/document/markup/Attributes.h"
#include "core/document/markup/Characters.h"
#include "core/document/markup/Entities.h"
#include "core/document/markup/LinkTargets.h"

#include <algorithm>
#include <vector>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isLetterOrDigit(QChar character)
{
    return character.isLetterOrNumber() || character.isSurrogate();
}

/** Escapes one stretch of plain text. */
class TextEscaper
{
public:
    TextEscaper(QStringView text, Place place, Care care)
        : m_text(text)
        , m_place(place)
        , m_isStrict(care == Care::Strict)
    {}

    [[nodiscard]] QString run()
    {
        while (m_index < m_text.size())
            step();
        return std::move(m_result);
    }

private:
    void step()
    {
        const QChar character = m_text[m_index];
        switch (character.unicode()) {
        case u'*':
        case u'_':
        case u'~':
            return writeMarks(character);
        case u'\\':
            return write(character, isBeforePunctuation());
        case u'`':
            return write(character, true);
        case u'[':
            write(character, m_place != Place::Text || m_isStrict);
            // A reader by pattern alone would find a footnote even behind an escaped bracket.
            if (m_index < m_text.size() && m_text[m_index] == u'^')
                write(u'^', true);
            return;
        case u']':
            if (m_place != Place::GroupText)
                return write(
                    character, m_place == Place::LinkText || m_isStrict || nextIs(u'(') || nextIs(u'{'));
            m_result += u"&#93;"_s;
            ++m_index;
            return;
        case u'<':
            return write(character, m_isStrict || readAutolink(m_text, m_index).end >= 0);
        case u'&':
            m_result += readEntity(m_text.sliced(m_index)).length > 0 ? u"&amp;"_s : u"&"_s;
            ++m_index;
            return;
        case u'{':
            m_result += character;
            ++m_index;
            // A group in the text would be taken for one wherever it stands.
            if (m_text.sliced(m_index - 1).startsWith(groupStart))
                m_result += u'\\';
            return;
        default:
            return write(character, false);
        }
    }

    void write(QChar character, bool isEscaped)
    {
        if (isEscaped)
            m_result += u'\\';
        m_result += character;
        ++m_index;
    }

    void writeMarks(QChar mark)
    {
        const qsizetype end = skip(m_text, m_index, [mark](QChar character) { return character == mark; });
        const QChar before = m_index > 0 ? m_text[m_index - 1] : QChar(u'*');
        const QChar after = end < m_text.size() ? m_text[end] : QChar(u'*');
        const bool isHarmless =
            !m_isStrict && ((before.isSpace() && after.isSpace()) ||
                            (mark == u'_' && isLetterOrDigit(before) && isLetterOrDigit(after)) ||
                            (mark == u'~' && end - m_index == 1 && before != u'*' && after != u'*'));
        while (m_index < end)
            write(mark, !isHarmless);
    }

    [[nodiscard]] bool isAtEnd() const { return m_index + 1 == m_text.size(); }
    [[nodiscard]] bool nextIs(QChar character) const
    {
        return !isAtEnd() && m_text[m_index + 1] == character;
    }
    [[nodiscard]] bool isBeforePunctuation() const
    {
        return isAtEnd() || isAsciiPunctuation(m_text[m_index + 1]);
    }

    QStringView m_text;
    Place m_place;
    bool m_isStrict;
    qsizetype m_index = 0;
    QString m_result;
};

} // namespace

QString escapedText(QStringView text, Place place, Care care)
{
    return TextEscaper(text, place, care).run();
}

QString codeSpan(const QString& code)
{
    std::vector<bool> isUsed(3, false);
    for (qsizetype start = code.indexOf(u'`'); start >= 0; start = code.indexOf(u'`', start)) {
        const qsizetype end = skip(code, start, [](QChar character) { return character == u'`'; });
        const auto length = static_cast<std::size_t>(end - start);
        isUsed.resize(std::max(isUsed.size(), length + 2), false);
        isUsed[length] = true;
        start = end;
    }
    const auto free = std::ranges::find(isUsed.begin() + 1, isUsed.end(), false);
    const QString fence(free - isUsed.begin(), u'`');
    const bool isAllBlank = std::ranges::all_of(code, [](QChar character) { return character == u' '; });
    const bool isPadded = code.startsWith(u'`') || code.endsWith(u'`') ||
                          (!isAllBlank && code.startsWith(u' ') && code.endsWith(u' '));
    const QString pad = isPadded ? u" "_s : QString();
    return fence + pad + code + pad + fence;
}

} // namespace tw::core::document::markup
