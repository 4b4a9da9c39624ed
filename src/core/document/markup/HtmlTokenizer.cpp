#include "core/document/markup/HtmlTokenizer.h"

#include "core/document/markup/Characters.h"
#include "core/document/markup/Entities.h"

#include <algorithm>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Attributes of one tag that are looked at. */
constexpr std::size_t mostAttributes = 64;

/** Elements whose content is no text of the writer's. */
bool isSkipped(QStringView name)
{
    static constexpr QLatin1StringView skipped[] = {"script"_L1,   "style"_L1,    "head"_L1,   "title"_L1,
                                                    "svg"_L1,      "math"_L1,     "object"_L1, "iframe"_L1,
                                                    "template"_L1, "noscript"_L1, "select"_L1};
    return std::ranges::any_of(skipped, [name](QLatin1StringView known) { return name == known; });
}

QString resolved(QStringView text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype index = 0; index < text.size();) {
        const Entity entity = text[index] == u'&' ? readEntity(text.sliced(index)) : Entity();
        if (entity.length > 0)
            result += entity.text;
        else
            result += text[index];
        index += std::max<qsizetype>(entity.length, 1);
    }
    return result;
}

bool isSpace(QChar character)
{
    return isBlank(character) || isLineEnd(character);
}

} // namespace

QString HtmlToken::attribute(QLatin1StringView name) const
{
    const auto found = std::ranges::find_if(
        attributes, [name](const HtmlAttribute& attribute) { return attribute.name == name; });
    return found == attributes.end() ? QString() : found->value;
}

HtmlToken HtmlTokenizer::next()
{
    while (skipOther()) {
    }
    if (m_position == m_html.size())
        return {};
    return startsTag(m_position) ? readTag() : readText();
}

bool HtmlTokenizer::startsTag(qsizetype index) const
{
    if (m_html[index] != u'<')
        return false;
    const qsizetype name = index + 1 < m_html.size() && m_html[index + 1] == u'/' ? index + 2 : index + 1;
    return name < m_html.size() && isAsciiLetter(m_html[name]);
}

bool HtmlTokenizer::skipOther()
{
    const QStringView rest = m_html.sliced(m_position);
    if (rest.startsWith(u"<!--"))
        skipPast(u"-->", m_position + 4);
    else if (rest.startsWith(u"<!") || rest.startsWith(u"<?"))
        skipPast(u">", m_position + 2);
    else
        return false;
    return true;
}

void HtmlTokenizer::skipPast(QStringView mark, qsizetype from)
{
    const qsizetype found = m_html.indexOf(mark, from);
    m_position = found < 0 ? m_html.size() : found + mark.size();
}

void HtmlTokenizer::skipContent(const QString& name)
{
    const qsizetype found = m_html.indexOf(QString(u"</"_s + name), m_position, Qt::CaseInsensitive);
    m_position = found < 0 ? m_html.size() : found;
}

HtmlToken HtmlTokenizer::readText()
{
    qsizetype end = m_position + 1;
    while (end < m_html.size()) {
        end = m_html.indexOf(u'<', end);
        if (end < 0)
            end = m_html.size();
        else if (
            !startsTag(end) && !m_html.sliced(end).startsWith(u"<!") && !m_html.sliced(end).startsWith(u"<?"))
            ++end;
        else
            break;
    }
    HtmlToken token;
    token.kind = HtmlToken::Kind::Text;
    token.text = resolved(m_html.sliced(m_position, end - m_position));
    m_position = end;
    return token;
}

HtmlToken HtmlTokenizer::readTag()
{
    HtmlToken tag;
    const bool isClosing = m_html[m_position + 1] == u'/';
    tag.kind = isClosing ? HtmlToken::Kind::Closing : HtmlToken::Kind::Opening;
    const qsizetype start = m_position + (isClosing ? 2 : 1);
    m_position = skip(m_html, start, [](QChar character) {
        return isAsciiLetter(character) || isAsciiDigit(character) || character == u'-' || character == u':';
    });
    tag.text = m_html.sliced(start, m_position - start).toString().toLower();
    readAttributes(tag);
    if (m_position == m_html.size())
        return {};
    ++m_position;
    if (!isClosing && isSkipped(tag.text))
        skipContent(tag.text);
    return tag;
}

void HtmlTokenizer::readAttributes(HtmlToken& tag)
{
    while (true) {
        m_position =
            skip(m_html, m_position, [](QChar character) { return isSpace(character) || character == u'/'; });
        if (m_position == m_html.size() || m_html[m_position] == u'>')
            return;
        const qsizetype nameStart = m_position;
        m_position = skip(m_html, m_position + 1, [](QChar character) {
            return !isSpace(character) && character != u'=' && character != u'>' && character != u'/';
        });
        HtmlAttribute attribute{m_html.sliced(nameStart, m_position - nameStart).toString().toLower(), {}};
        m_position = skip(m_html, m_position, isSpace);
        if (m_position < m_html.size() && m_html[m_position] == u'=') {
            m_position = skip(m_html, m_position + 1, isSpace);
            const QChar quote = m_position < m_html.size() ? m_html[m_position] : QChar();
            const bool isQuoted = quote == u'"' || quote == u'\'';
            const qsizetype start = m_position + (isQuoted ? 1 : 0);
            const qsizetype end = skip(m_html, start, [isQuoted, quote](QChar character) {
                return isQuoted ? character != quote : !isSpace(character) && character != u'>';
            });
            attribute.value = resolved(m_html.sliced(start, end - start));
            m_position = std::min(end + (isQuoted ? 1 : 0), m_html.size());
        }
        if (tag.attributes.size() < mostAttributes)
            tag.attributes.push_back(std::move(attribute));
    }
}

} // namespace tw::core::document::markup
