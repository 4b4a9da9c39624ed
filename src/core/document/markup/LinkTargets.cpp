#include "core/document/markup/LinkTargets.h"

#include "core/document/markup/Characters.h"
#include "core/document/markup/Entities.h"

#include <algorithm>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

/** A target with more parentheses in each other is none: it bounds how often a text is looked at. */
constexpr int deepestParentheses = 32;
constexpr qsizetype shortestScheme = 2;
constexpr qsizetype longestScheme = 32;

bool isControl(QChar character)
{
    return character.unicode() < u' ' || character == u'\x7f';
}

/** Whether a backslash at the offset takes the meaning from the next character. */
bool isEscape(QStringView text, qsizetype index)
{
    return text[index] == u'\\' && index + 1 < text.size() && isAsciiPunctuation(text[index + 1]);
}

QString unescaped(QStringView text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (isEscape(text, index)) {
            result += text[++index];
            continue;
        }
        const Entity entity = text[index] == u'&' ? readEntity(text.sliced(index)) : Entity();
        if (entity.length == 0) {
            result += text[index];
            continue;
        }
        result += entity.text;
        index += entity.length - 1;
    }
    return result;
}

qsizetype skipSpace(QStringView text, qsizetype from)
{
    return skip(text, from, [](QChar character) { return isBlank(character) || isLineEnd(character); });
}

/** The end of "<...>" from its "<" on, after the ">"; -1 when it does not end. */
qsizetype endOfBracketed(QStringView text, qsizetype start)
{
    for (qsizetype index = start + 1; index < text.size(); ++index) {
        if (isEscape(text, index))
            ++index;
        else if (text[index] == u'>')
            return index + 1;
        else if (text[index] == u'<' || isLineEnd(text[index]))
            return -1;
    }
    return -1;
}

qsizetype endOfBare(QStringView text, qsizetype start)
{
    int depth = 0;
    qsizetype index = start;
    for (; index < text.size(); ++index) {
        const QChar character = text[index];
        if (isEscape(text, index)) {
            ++index;
        } else if (character == u'(') {
            if (++depth > deepestParentheses)
                return -1;
        } else if (character == u')') {
            if (--depth < 0)
                break;
        } else if (character == u' ' || isControl(character)) {
            break;
        }
    }
    return depth > 0 ? -1 : index;
}

/** The end of a title from its first mark on, after the last; -1 when it does not end. */
qsizetype endOfTitle(QStringView text, qsizetype start)
{
    const QChar opening = text[start];
    const QChar closing = opening == u'(' ? QChar(u')') : opening;
    for (qsizetype index = start + 1; index < text.size(); ++index) {
        if (isEscape(text, index))
            ++index;
        else if (text[index] == closing)
            return index + 1;
        else if (text[index] == opening)
            return -1;
    }
    return -1;
}

QString escaped(QStringView text, QStringView marks)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype index = 0; index < text.size(); ++index) {
        const QChar character = text[index];
        if (marks.contains(character) || isEscape(text, index) ||
            (character == u'\\' && index + 1 == text.size()))
            result += u'\\';
        if (character == u'&' && readEntity(text.sliced(index)).length > 0)
            result += u"&amp;"_s;
        else
            result += character;
    }
    return result;
}

bool isMailCharacter(QChar character)
{
    return isAsciiLetter(character) || isAsciiDigit(character) ||
           QStringView(u".!#$%&'*+/=?^_`{|}~-").contains(character);
}

bool isMailAddress(QStringView text)
{
    const qsizetype sign = text.indexOf(u'@');
    if (sign < 1 || !std::ranges::all_of(text.first(sign), isMailCharacter))
        return false;
    const auto isHostCharacter = [](QChar character) {
        return isAsciiLetter(character) || isAsciiDigit(character) || character == u'-' || character == u'.';
    };
    const QStringView host = text.sliced(sign + 1);
    return !host.isEmpty() && std::ranges::all_of(host, isHostCharacter) && host.front() != u'.' &&
           host.back() != u'.';
}

bool isAddress(QStringView text)
{
    const qsizetype colon = text.first(std::min(text.size(), longestScheme + 1)).indexOf(u':');
    return colon >= shortestScheme && isAsciiLetter(text.front()) &&
           std::ranges::all_of(text.first(colon), [](QChar character) {
               return isAsciiLetter(character) || isAsciiDigit(character) || character == u'+' ||
                      character == u'.' || character == u'-';
           });
}

} // namespace

LinkTail readLinkTail(QStringView text, qsizetype start)
{
    const qsizetype targetStart = skipSpace(text, start + 1);
    const bool isBracketed = targetStart < text.size() && text[targetStart] == u'<';
    const qsizetype targetEnd =
        isBracketed ? endOfBracketed(text, targetStart) : endOfBare(text, targetStart);
    if (targetEnd <= targetStart + (isBracketed ? 2 : 0))
        return {};
    const qsizetype trim = isBracketed ? 1 : 0;
    LinkTail tail;
    tail.target.target = unescaped(text.sliced(targetStart + trim, targetEnd - targetStart - 2 * trim));
    qsizetype position = skipSpace(text, targetEnd);
    if (position > targetEnd && position < text.size() && QStringView(u"\"'(").contains(text[position])) {
        const qsizetype titleEnd = endOfTitle(text, position);
        if (titleEnd < 0)
            return {};
        tail.target.title = unescaped(text.sliced(position + 1, titleEnd - position - 2));
        tail.target.title.replace(u'\n', u' ');
        position = skipSpace(text, titleEnd);
    }
    if (position < text.size() && text[position] == u')')
        tail.end = position + 1;
    return tail;
}

QString writeLinkTail(const LinkTarget& target)
{
    const bool isBare =
        !target.target.isEmpty() && target.target.front() != u'<' &&
        std::ranges::none_of(target.target, [](QChar character) {
            return character == u' ' || character == u'(' || character == u')' || isControl(character);
        });
    const QString address =
        isBare ? escaped(target.target, u"") : u'<' + escaped(target.target, u"<>") + u'>';
    if (target.title.isEmpty())
        return u'(' + address + u')';
    return u'(' + address + u" \""_s + escaped(target.title, u"\"") + u"\")"_s;
}

Autolink readAutolink(QStringView text, qsizetype start)
{
    const qsizetype end = skip(text, start + 1, [](QChar character) {
        return character != u'>' && character != u'<' && character != u' ' && !isControl(character);
    });
    if (end == text.size() || text[end] != u'>')
        return {};
    const QStringView address = text.sliced(start + 1, end - start - 1);
    if (isAddress(address))
        return {{address.toString(), {}}, address, end + 1};
    if (isMailAddress(address))
        return {{u"mailto:"_s + address.toString(), {}}, address, end + 1};
    return {};
}

} // namespace tw::core::document::markup
