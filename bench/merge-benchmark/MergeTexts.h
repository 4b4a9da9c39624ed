#pragma once

#include <QByteArray>

namespace tw::bench {

/** A text of many lines, and two edits of it. */
struct MergeTexts
{
    QByteArray base;
    QByteArray mine;
    QByteArray theirs;
};

/** Each side changes one line in a hundred, all of them apart. */
[[nodiscard]] MergeTexts textsWithScatteredEdits(int lines);

/** The same, and mine has a third of the lines in another place, as one block. */
[[nodiscard]] MergeTexts textsWithAMovedThird(int lines);

} // namespace tw::bench
