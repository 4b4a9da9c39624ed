#include "app/spreadsheet/Criterion.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tw::app::spreadsheet {

namespace {

/** One place of a pattern: a wildcard, or a character to find. */
struct PatternPlace
{
    QChar character;
    bool isWildcard = false;
    qsizetype length = 1;
};

PatternPlace placeAt(QStringView pattern, qsizetype index)
{
    const QChar character = pattern[index];
    if (character == u'~' && index + 1 < pattern.size()) {
        const QChar next = pattern[index + 1];
        if (next == u'*' || next == u'?' || next == u'~')
            return {next, false, 2};
    }
    return {character, character == u'*' || character == u'?', 1};
}

bool matchesPlace(QChar character, const PatternPlace& place)
{
    return place.isWildcard ? place.character == u'?'
                            : character.toCaseFolded() == place.character.toCaseFolded();
}

/** The pattern taken apart at its stars; at least one part, which may be empty. */
std::vector<std::vector<PatternPlace>> partsOf(QStringView pattern)
{
    std::vector<std::vector<PatternPlace>> parts(1);
    for (qsizetype index = 0; index < pattern.size();) {
        const PatternPlace place = placeAt(pattern, index);
        if (place.isWildcard && place.character == u'*')
            parts.emplace_back();
        else
            parts.back().push_back(place);
        index += place.length;
    }
    return parts;
}

qsizetype findPart(QStringView text, const std::vector<PatternPlace>& part, qsizetype from)
{
    for (qsizetype start = from; start + std::ssize(part) <= text.size(); ++start) {
        if (std::ranges::equal(text.sliced(start, std::ssize(part)), part, matchesPlace))
            return start;
    }
    return -1;
}

} // namespace

bool matchesPattern(QStringView text, QStringView pattern)
{
    // Greedy, going back to the latest "*" alone: it can always take what an earlier one would have to.
    if (pattern.size() > mostPatternCharacters)
        return false;
    qsizetype inText = 0;
    qsizetype inPattern = 0;
    qsizetype afterStar = -1;
    qsizetype starText = 0;
    while (inText < text.size()) {
        if (inPattern < pattern.size()) {
            const PatternPlace place = placeAt(pattern, inPattern);
            if (place.isWildcard && place.character == u'*') {
                afterStar = ++inPattern;
                starText = inText;
                continue;
            }
            if (matchesPlace(text[inText], place)) {
                ++inText;
                inPattern += place.length;
                continue;
            }
        }
        if (afterStar < 0)
            return false;
        inPattern = afterStar;
        inText = ++starText;
    }
    while (inPattern < pattern.size() && pattern[inPattern] == u'*')
        ++inPattern;
    return inPattern == pattern.size();
}

qsizetype findPattern(QStringView text, QStringView pattern, qsizetype from)
{
    if (pattern.size() > mostPatternCharacters)
        return -1;
    // The parts between stars, each at its earliest place: if they do not fit after the first place of the
    // first part, they fit after no later one either.
    qsizetype result = -1;
    qsizetype inText = from;
    for (const std::vector<PatternPlace>& part : partsOf(pattern)) {
        const qsizetype found = findPart(text, part, inText);
        if (found < 0)
            return -1;
        result = result < 0 ? found : result;
        inText = found + static_cast<qsizetype>(part.size());
    }
    return result;
}

Criterion::Criterion(const CellValue& condition)
    : m_operand(condition)
{
    if (!condition.isText())
        return;
    static constexpr std::pair<QStringView, Sign> signs[] = {
        {u"<>", Sign::NotEqual}, {u"<=", Sign::LessOrEqual}, {u">=", Sign::GreaterOrEqual},
        {u"=", Sign::Equal},     {u"<", Sign::Less},         {u">", Sign::Greater},
    };
    QString text = condition.text();
    for (const auto& [written, sign] : signs) {
        if (text.startsWith(written)) {
            m_sign = sign;
            text.remove(0, written.size());
            break;
        }
    }
    m_operand = literalValue(text);
}

bool Criterion::isEqual(const CellValue& value) const
{
    if (m_operand.isBlank())
        return value.isBlank() || (value.isText() && value.text().isEmpty());
    if (m_operand.isText())
        return value.isText() && matchesPattern(value.text(), m_operand.text());
    return value == m_operand;
}

bool Criterion::holds(const CellValue& value) const
{
    if (m_sign == Sign::Equal)
        return isEqual(value);
    if (m_sign == Sign::NotEqual)
        return !isEqual(value);
    // An order exists only within a kind.
    if (value.isNumber() != m_operand.isNumber() || value.isText() != m_operand.isText() || value.isError())
        return false;
    const int order = compareValues(value, m_operand);
    switch (m_sign) {
    case Sign::Less:
        return order < 0;
    case Sign::LessOrEqual:
        return order <= 0;
    case Sign::Greater:
        return order > 0;
    default:
        return order >= 0;
    }
}

} // namespace tw::app::spreadsheet
