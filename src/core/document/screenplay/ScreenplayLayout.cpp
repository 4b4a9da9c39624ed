#include "core/document/screenplay/ScreenplayLayout.h"

#include <algorithm>

namespace tw::core::document::screenplay {

namespace {

/** Lines that the text takes in a column, broken between words. */
qsizetype wrappedLines(QStringView text, int width)
{
    qsizetype lines = 1;
    qsizetype used = 0;
    for (qsizetype start = 0; start < text.size();) {
        if (text[start].isSpace()) {
            ++start;
            continue;
        }
        qsizetype end = start;
        while (end < text.size() && !text[end].isSpace())
            ++end;
        const qsizetype length = end - start;
        const qsizetype gap = used > 0 ? 1 : 0;
        if (used > 0 && used + gap + length > width) {
            ++lines;
            used = length;
        } else {
            used += gap + length;
        }
        // A word longer than the column goes on in the lines below.
        if (used > width) {
            lines += (used - 1) / width;
            used = (used - 1) % width + 1;
        }
        start = end;
    }
    return lines;
}

} // namespace

Column columnOf(Element element)
{
    switch (element) {
    case Element::Character:
        return {22, lineCharacters - 22};
    case Element::Dialogue:
        return {10, 35};
    case Element::Parenthetical:
        return {16, 25};
    case Element::Blank:
    case Element::SceneHeading:
    case Element::Action:
    case Element::Transition:
        break;
    }
    return {};
}

int pagesOf(const std::vector<QStringView>& lines)
{
    const std::vector<Element> elements = elementsOf(lines);
    qsizetype printed = 0;
    qsizetype blanks = 0;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        if (elements[index] == Element::Blank) {
            ++blanks;
            continue;
        }
        // Empty lines before the first and behind the last word are not printed.
        printed += (printed > 0 ? blanks : 0) + wrappedLines(lines[index], columnOf(elements[index]).width);
        blanks = 0;
    }
    return static_cast<int>(std::min<qsizetype>((printed + pageLines - 1) / pageLines, 1'000'000));
}

} // namespace tw::core::document::screenplay
