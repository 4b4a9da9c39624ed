#include "bench/merge-benchmark/MergeTexts.h"

#include <algorithm>
#include <vector>

namespace tw::bench {

namespace {

constexpr int editDistance = 100;

using Lines = std::vector<QByteArray>;

Lines plainLines(int count)
{
    Lines lines;
    lines.reserve(static_cast<std::size_t>(count));
    // One line in eight reads like many others, as blank lines and brackets do.
    for (int line = 0; line < count; ++line) {
        lines.push_back(
            line % 8 == 7 ? QByteArray("    },\n")
                          : "    \"key " + QByteArray::number(line) + "\": \"the tide at the " +
                                QByteArray::number(line * 7919 % count) + "th bell\",\n");
    }
    return lines;
}

void edit(Lines& lines, std::size_t firstLine, const QByteArray& who)
{
    for (std::size_t line = firstLine; line < lines.size(); line += editDistance)
        lines[line] = "    \"" + who + "\": " + QByteArray::number(static_cast<qulonglong>(line)) + ",\n";
}

QByteArray joined(const Lines& lines)
{
    QByteArray text;
    for (const QByteArray& line : lines)
        text += line;
    return text;
}

MergeTexts textsOf(const Lines& base, Lines mine)
{
    Lines theirs = base;
    edit(theirs, editDistance / 2, "theirs");
    return {joined(base), joined(mine), joined(theirs)};
}

} // namespace

MergeTexts textsWithScatteredEdits(int lines)
{
    const Lines base = plainLines(lines);
    Lines mine = base;
    edit(mine, 0, "mine");
    return textsOf(base, std::move(mine));
}

MergeTexts textsWithAMovedThird(int lines)
{
    const Lines base = plainLines(lines);
    Lines mine = base;
    edit(mine, 0, "mine");
    std::rotate(mine.begin(), mine.begin() + lines / 3, mine.end());
    return textsOf(base, std::move(mine));
}

} // namespace tw::bench
