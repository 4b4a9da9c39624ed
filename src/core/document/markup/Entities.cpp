#include "core/document/markup/Entities.h"

#include "core/document/markup/Characters.h"

#include <algorithm>
#include <iterator>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Longest name or number between "&" and ";". */
constexpr qsizetype longestName = 12;

struct NamedEntity
{
    QLatin1StringView name;
    char16_t character;
};

/** What people and older editors write by name; the rest of the thousands goes as characters. */
constexpr NamedEntity namedEntities[] = {
    {"amp"_L1, u'&'},         {"lt"_L1, u'<'},          {"gt"_L1, u'>'},          {"quot"_L1, u'"'},
    {"apos"_L1, u'\''},       {"nbsp"_L1, u'\u00a0'},   {"iexcl"_L1, u'\u00a1'},  {"cent"_L1, u'\u00a2'},
    {"pound"_L1, u'\u00a3'},  {"yen"_L1, u'\u00a5'},    {"sect"_L1, u'\u00a7'},   {"copy"_L1, u'\u00a9'},
    {"laquo"_L1, u'\u00ab'},  {"shy"_L1, u'\u00ad'},    {"reg"_L1, u'\u00ae'},    {"deg"_L1, u'\u00b0'},
    {"para"_L1, u'\u00b6'},   {"middot"_L1, u'\u00b7'}, {"raquo"_L1, u'\u00bb'},  {"iquest"_L1, u'\u00bf'},
    {"times"_L1, u'\u00d7'},  {"szlig"_L1, u'\u00df'},  {"auml"_L1, u'\u00e4'},   {"Auml"_L1, u'\u00c4'},
    {"ouml"_L1, u'\u00f6'},   {"Ouml"_L1, u'\u00d6'},   {"uuml"_L1, u'\u00fc'},   {"Uuml"_L1, u'\u00dc'},
    {"agrave"_L1, u'\u00e0'}, {"ccedil"_L1, u'\u00e7'}, {"egrave"_L1, u'\u00e8'}, {"eacute"_L1, u'\u00e9'},
    {"ecirc"_L1, u'\u00ea'},  {"ntilde"_L1, u'\u00f1'}, {"ensp"_L1, u'\u2002'},   {"emsp"_L1, u'\u2003'},
    {"thinsp"_L1, u'\u2009'}, {"zwnj"_L1, u'\u200c'},   {"zwj"_L1, u'\u200d'},    {"ndash"_L1, u'\u2013'},
    {"mdash"_L1, u'\u2014'},  {"lsquo"_L1, u'\u2018'},  {"rsquo"_L1, u'\u2019'},  {"sbquo"_L1, u'\u201a'},
    {"ldquo"_L1, u'\u201c'},  {"rdquo"_L1, u'\u201d'},  {"bdquo"_L1, u'\u201e'},  {"bull"_L1, u'\u2022'},
    {"hellip"_L1, u'\u2026'}, {"lsaquo"_L1, u'\u2039'}, {"rsaquo"_L1, u'\u203a'}, {"euro"_L1, u'\u20ac'},
    {"trade"_L1, u'\u2122'},  {"minus"_L1, u'\u2212'},
};

QString characterOf(uint code)
{
    // A line end would part the line it stands in, in every place that writes the text again.
    if (code == u'\n' || code == u'\r' || code == QChar::LineSeparator || code == QChar::ParagraphSeparator)
        return u" "_s;
    const bool isText = (code >= u' ' || code == u'\t') && !(code >= 0x7f && code < 0xa0) &&
                        code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code) &&
                        !QChar::isNonCharacter(code);
    const char32_t character = isText ? char32_t(code) : char32_t(QChar::ReplacementCharacter);
    return QString::fromUcs4(&character, 1);
}

QString readNumber(QStringView digits)
{
    const bool isHexadecimal = digits.startsWith(u'x') || digits.startsWith(u'X');
    if (isHexadecimal)
        digits = digits.sliced(1);
    const auto isDigit = [isHexadecimal](QChar character) {
        return isAsciiDigit(character) ||
               (isHexadecimal && isAsciiLetter(character) && (character.unicode() | 0x20) <= u'f');
    };
    if (digits.isEmpty() || !std::ranges::all_of(digits, isDigit))
        return {};
    bool isOk = false;
    const uint code = digits.toUInt(&isOk, isHexadecimal ? 16 : 10);
    return characterOf(isOk ? code : 0);
}

QString readName(QStringView name)
{
    const auto* const entity =
        std::ranges::find_if(namedEntities, [name](const NamedEntity& known) { return name == known.name; });
    return entity == std::end(namedEntities) ? QString() : QString(QChar(entity->character));
}

} // namespace

Entity readEntity(QStringView text)
{
    const qsizetype end = text.first(std::min(text.size(), longestName + 2)).indexOf(u';');
    if (end < 2 || text.front() != u'&')
        return {};
    const QStringView name = text.sliced(1, end - 1);
    const QString character = name.startsWith(u'#') ? readNumber(name.sliced(1)) : readName(name);
    return {character, character.isEmpty() ? 0 : end + 1};
}

} // namespace tw::core::document::markup
