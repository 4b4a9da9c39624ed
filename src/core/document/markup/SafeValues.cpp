#include "core/document/markup/SafeValues.h"

#include "core/document/markup/Characters.h"
#include "core/document/markup/Entities.h"

#include <algorithm>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestColor = 64;
constexpr qsizetype longestFamily = 128;

bool isInvisible(QChar character)
{
    return character.isSpace() || character.category() == QChar::Other_Control ||
           character.category() == QChar::Other_Format || character == u'\0';
}

bool isHexadecimal(QChar character)
{
    return isAsciiDigit(character) || (isAsciiLetter(character) && (character.unicode() | 0x20) <= u'f');
}

/** The target as the most forgiving reader might see it: what is invisible gone, references resolved. */
QString unmasked(const QString& target)
{
    QString text;
    for (qsizetype index = 0; index < target.size(); ++index) {
        const Entity entity =
            target[index] == u'&' ? readEntity(QStringView(target).sliced(index)) : Entity();
        if (entity.length > 0) {
            text += entity.text;
            index += entity.length - 1;
        } else {
            text += target[index];
        }
    }
    text.removeIf(isInvisible);
    return text;
}

bool isFunction(QStringView color, QStringView name)
{
    if (!color.startsWith(name, Qt::CaseInsensitive) || !color.endsWith(u')'))
        return false;
    return std::ranges::all_of(color.sliced(name.size()).chopped(1), [](QChar character) {
        return isAsciiDigit(character) || character == u',' || character == u'.' || character == u'%' ||
               character == u' ';
    });
}

} // namespace

QString safeLinkTarget(const QString& target)
{
    const QString seen = unmasked(target);
    if (seen.startsWith("//"_L1) || seen.startsWith(u'\\') || seen.startsWith("/\\"_L1))
        return {};
    const qsizetype pathStart =
        std::ranges::find_if(seen, [](QChar character) { return character == u'/' || character == u'?'; }) -
        seen.begin();
    const QStringView head = QStringView(seen).first(pathStart);
    if (const qsizetype colon = head.indexOf(u':'); colon >= 0) {
        const QStringView scheme = head.first(colon);
        const bool isKnown = std::ranges::any_of(
            std::initializer_list<QLatin1StringView>{"http"_L1, "https"_L1, "mailto"_L1},
            [scheme](QLatin1StringView known) { return scheme.compare(known, Qt::CaseInsensitive) == 0; });
        if (!isKnown)
            return {};
    } else if ((head.contains(u'&') && head.contains(u';')) || head.contains("%3a"_L1, Qt::CaseInsensitive)) {
        // A scheme may hide in references and escapes we do not know.
        return {};
    }
    QString clean = target;
    clean.removeIf([](QChar character) {
        return character.category() == QChar::Other_Control || character.category() == QChar::Other_Format;
    });
    return clean.trimmed();
}

QString safeColor(const QString& color)
{
    const QString text = color.trimmed();
    if (text.isEmpty() || text.size() > longestColor)
        return {};
    const bool isNumber = text.front() == u'#' && text.size() > 3 && text.size() <= 9 &&
                          std::ranges::all_of(QStringView(text).sliced(1), isHexadecimal);
    const bool isName = std::ranges::all_of(text, isAsciiLetter);
    const bool isKnown = isNumber || isName || isFunction(text, u"rgb(") || isFunction(text, u"rgba(") ||
                         isFunction(text, u"hsl(") || isFunction(text, u"hsla(");
    return isKnown ? text : QString();
}

QString safeFontFamily(const QString& family)
{
    const auto isNameCharacter = [](QChar character) {
        return character.isLetterOrNumber() || character == u' ' || character == u'-' || character == u'_' ||
               character == u'.' || character == u'&' || character == u'+';
    };
    return family.size() <= longestFamily && std::ranges::all_of(family, isNameCharacter) ? family
                                                                                          : QString();
}

QString safeAlignment(const QString& alignment)
{
    for (const QLatin1StringView known : {"left"_L1, "center"_L1, "right"_L1, "justify"_L1}) {
        if (alignment == known)
            return alignment;
    }
    return {};
}

} // namespace tw::core::document::markup
