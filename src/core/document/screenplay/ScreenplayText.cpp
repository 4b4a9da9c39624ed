#include "core/document/screenplay/ScreenplayText.h"

#include <algorithm>
#include <array>

namespace tw::core::document::screenplay {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array headingStarts{QLatin1StringView("INT./EXT"), QLatin1StringView("INT/EXT"),
                                   QLatin1StringView("INT"),      QLatin1StringView("EXT"),
                                   QLatin1StringView("EST"),      QLatin1StringView("I/E")};

bool isBlank(QStringView line)
{
    // Two blanks keep a pause in a speech from ending it.
    return line.trimmed().isEmpty() && line != u"  ";
}

bool startsLikeHeading(QStringView line)
{
    return std::ranges::any_of(headingStarts, [line](QLatin1StringView start) {
        if (!line.startsWith(start, Qt::CaseInsensitive) || line.size() == start.size())
            return false;
        const QChar next = line[start.size()];
        return next == u'.' || next == u' ';
    });
}

/** In capitals, with at least one letter; what stands in parentheses does not count. */
bool isInCapitals(QStringView line)
{
    bool hasLetter = false;
    int depth = 0;
    for (const QChar character : line) {
        if (character == u'(')
            ++depth;
        else if (character == u')')
            depth = std::max(0, depth - 1);
        else if (depth > 0)
            continue;
        else if (character.isLower())
            return false;
        else
            hasLetter = hasLetter || character.isLetter();
    }
    return hasLetter;
}

bool isInParentheses(QStringView line)
{
    const QStringView text = line.trimmed();
    return text.size() > 1 && text.startsWith(u'(') && text.endsWith(u')');
}

bool looksLikeTransition(QStringView line)
{
    return line.trimmed().endsWith(u"TO:") && isInCapitals(line);
}

bool belongsToSpeech(Element element)
{
    return element == Element::Character || element == Element::Dialogue || element == Element::Parenthetical;
}

/** The element that a mark at the beginning forces; Blank when there is no mark. */
Element forcedElement(QStringView line)
{
    if (line.isEmpty())
        return Element::Blank;
    switch (line.front().unicode()) {
    case u'.':
        // An ellipsis begins no scene.
        return line.size() > 1 && line[1] != u'.' ? Element::SceneHeading : Element::Blank;
    case u'!':
        return Element::Action;
    case u'@':
        return Element::Character;
    case u'>':
        // Between ">" and "<" a line is centred, which is action.
        return line.trimmed().endsWith(u'<') ? Element::Action : Element::Transition;
    default:
        return Element::Blank;
    }
}

} // namespace

const std::vector<Element>& chosenElements()
{
    static const std::vector<Element> elements{Element::SceneHeading,  Element::Action,
                                               Element::Character,     Element::Dialogue,
                                               Element::Parenthetical, Element::Transition};
    return elements;
}

bool isCapitalised(Element element)
{
    return element == Element::SceneHeading || element == Element::Character ||
           element == Element::Transition;
}

Element elementOf(QStringView line, Element above, bool isBlankBelow)
{
    if (isBlank(line))
        return Element::Blank;
    const Element forced = forcedElement(line);
    // What is said may begin with anything, but the marks of an action and a character are plain.
    const bool isSpeech = belongsToSpeech(above);
    if (forced != Element::Blank && (!isSpeech || forced == Element::Action || forced == Element::Character))
        return forced;
    if (isSpeech)
        return isInParentheses(line) ? Element::Parenthetical : Element::Dialogue;
    if (startsLikeHeading(line))
        return Element::SceneHeading;
    const bool isBlankAbove = above == Element::Blank;
    if (isBlankAbove && isBlankBelow && looksLikeTransition(line))
        return Element::Transition;
    if (isBlankAbove && !isBlankBelow && isInCapitals(line))
        return Element::Character;
    return Element::Action;
}

std::vector<Element> elementsOf(const std::vector<QStringView>& lines)
{
    std::vector<Element> elements;
    elements.reserve(lines.size());
    Element above = Element::Blank;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        const bool isBlankBelow = index + 1 == lines.size() || isBlank(lines[index + 1]);
        above = elementOf(lines[index], above, isBlankBelow);
        elements.push_back(above);
    }
    return elements;
}

qsizetype markLength(QStringView line, Element element)
{
    return element != Element::Blank && forcedElement(line) == element ? 1 : 0;
}

QString rewrittenAs(QStringView line, Element present, Element wanted)
{
    QString text = line.sliced(markLength(line, present)).trimmed().toString();
    if (wanted != Element::Parenthetical && isInParentheses(text))
        text = text.sliced(1, text.size() - 2);
    if (isCapitalised(wanted))
        text = text.toUpper();
    switch (wanted) {
    case Element::SceneHeading:
        // Behind the mark no other dot may follow: an ellipsis begins no scene.
        while (text.startsWith(u'.'))
            text.remove(0, 1);
        return startsLikeHeading(text) ? text : u'.' + text;
    case Element::Action: {
        const bool misleads = forcedElement(text) != Element::Blank || startsLikeHeading(text) ||
                              isInCapitals(text) || present == Element::Dialogue;
        return misleads ? u'!' + text : text;
    }
    case Element::Character:
        return isInCapitals(text) && !startsLikeHeading(text) && forcedElement(text) == Element::Blank
                   ? text
                   : u'@' + text;
    case Element::Parenthetical:
        return isInParentheses(text) ? text : u'(' + text + u')';
    case Element::Transition:
        return looksLikeTransition(text) ? text : u"> "_s + text;
    case Element::Dialogue:
    case Element::Blank:
        break;
    }
    return text;
}

Element elementAfter(Element element)
{
    switch (element) {
    case Element::Character:
    case Element::Parenthetical:
        return Element::Dialogue;
    case Element::Dialogue:
        return Element::Character;
    case Element::Transition:
        return Element::SceneHeading;
    case Element::Blank:
    case Element::SceneHeading:
    case Element::Action:
        break;
    }
    return Element::Action;
}

bool isPartedFrom(Element element, Element next)
{
    const bool isSpeaking =
        element == Element::Character || element == Element::Parenthetical || element == Element::Dialogue;
    return !(isSpeaking && (next == Element::Dialogue || next == Element::Parenthetical));
}

} // namespace tw::core::document::screenplay
