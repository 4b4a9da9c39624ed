#include "core/document/markup/LinePatterns.h"

#include "core/document/markup/Blocks.h"
#include "core/document/markup/Characters.h"

#include <algorithm>

namespace tw::core::document::markup {

namespace {

constexpr int tabStop = 4;
constexpr int deepestHeading = 6;
constexpr qsizetype shortestFence = 3;

qsizetype skipBlanks(QStringView line, qsizetype from = 0)
{
    return skip(line, from, isBlank);
}

int columnsOf(QStringView blanks)
{
    int columns = 0;
    for (const QChar blank : blanks)
        columns += blank == u'\t' ? tabStop - columns % tabStop : 1;
    return columns;
}

bool isRuleMark(QChar character)
{
    return character == u'-' || character == u'*' || character == u'_';
}

} // namespace

bool isBlankLine(QStringView line)
{
    return skipBlanks(line) == line.size();
}

std::optional<HeadingLine> matchHeading(QStringView line)
{
    const qsizetype level = skip(line, 0, [](QChar character) { return character == u'#'; });
    if (level < 1 || level > deepestHeading || level == line.size() || !isBlank(line[level]))
        return std::nullopt;
    return HeadingLine{static_cast<int>(level), line.sliced(skipBlanks(line, level))};
}

bool isRuleLine(QStringView line)
{
    constexpr int fewestMarks = 3;
    int marks = 0;
    for (const QChar character : line) {
        if (isRuleMark(character))
            marks = std::min(marks + 1, fewestMarks);
        else if (!isBlank(character))
            return false;
    }
    return marks == fewestMarks;
}

std::optional<ItemLine> matchItem(QStringView line)
{
    const qsizetype start = skipBlanks(line);
    qsizetype end = skip(line, start, isAsciiDigit);
    const bool isNumbered = end > start;
    if (end == line.size())
        return std::nullopt;
    const QChar mark = line[end];
    if (isNumbered ? mark != u'.' && mark != u')' : mark != u'-' && mark != u'*' && mark != u'+')
        return std::nullopt;
    ++end;
    if (end == line.size() || !isBlank(line[end]))
        return std::nullopt;
    return ItemLine{
        isNumbered, columnsOf(line.first(start)), line.sliced(start, end - start),
        line.sliced(skipBlanks(line, end))};
}

std::optional<QuotationLine> matchQuotation(QStringView line)
{
    QuotationLine match{0, line};
    while (match.depth < deepestLevel) {
        const qsizetype mark = skipBlanks(match.text);
        if (mark == match.text.size() || match.text[mark] != u'>')
            break;
        const bool hasBlank = mark + 1 < match.text.size() && isBlank(match.text[mark + 1]);
        match.text = match.text.sliced(mark + (hasBlank ? 2 : 1));
        ++match.depth;
    }
    return match.depth > 0 ? std::optional(match) : std::nullopt;
}

std::optional<FenceLine> matchFence(QStringView line)
{
    if (line.isEmpty() || (line.front() != u'`' && line.front() != u'~'))
        return std::nullopt;
    const QChar mark = line.front();
    const qsizetype length = skip(line, 0, [mark](QChar character) { return character == mark; });
    if (length < shortestFence)
        return std::nullopt;
    QStringView language = line.sliced(skipBlanks(line, length));
    while (!language.isEmpty() && isBlank(language.back()))
        language.chop(1);
    return FenceLine{line.first(length), language};
}

bool closesFence(QStringView line, QStringView fence)
{
    const auto match = matchFence(line);
    return match && match->language.isEmpty() && match->fence.front() == fence.front() &&
           match->fence.size() >= fence.size();
}

std::optional<FootnoteLine> matchFootnote(QStringView line)
{
    if (!line.startsWith(u"[^"))
        return std::nullopt;
    const qsizetype end = line.indexOf(u']');
    if (end < 3 || end + 1 == line.size() || line[end + 1] != u':')
        return std::nullopt;
    return FootnoteLine{line.sliced(2, end - 2), line.sliced(skipBlanks(line, end + 2))};
}

bool isTableSeparator(QStringView line)
{
    qsizetype position = !line.isEmpty() && line.front() == u'|' ? 1 : 0;
    while (true) {
        position = skipBlanks(line, position);
        if (position < line.size() && line[position] == u':')
            ++position;
        const qsizetype dashes = position;
        position = skip(line, position, [](QChar character) { return character == u'-'; });
        if (position == dashes)
            return false;
        if (position < line.size() && line[position] == u':')
            ++position;
        position = skipBlanks(line, position);
        if (position == line.size())
            return true;
        if (line[position] != u'|')
            return false;
        if (++position == line.size())
            return true;
    }
}

bool startsBlock(QStringView line)
{
    return matchHeading(line) || isRuleLine(line) || matchItem(line) || matchQuotation(line) ||
           matchFence(line) || matchFootnote(line);
}

} // namespace tw::core::document::markup
