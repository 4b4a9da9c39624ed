#pragma once

#include <QtGlobal>

#include <span>
#include <vector>

namespace tw::app::persistence {

/** Lines of one text: from `first`, `count` of them. */
struct LineRange
{
    qsizetype first = 0;
    qsizetype count = 0;

    [[nodiscard]] qsizetype end() const { return first + count; }
    friend bool operator==(const LineRange&, const LineRange&) = default;
};

/** One change: these lines of the old text became those of the new one. Either may be empty, not both. */
struct DiffHunk
{
    LineRange before;
    LineRange after;

    friend bool operator==(const DiffHunk&, const DiffHunk&) = default;
};

/**
 * What turns one list of lines into another, in order; hunks do not touch. Lines are given as numbers: equal
 * numbers, equal lines. Any thread.
 *
 * The shortest script by Myers ("An O(ND) Difference Algorithm and Its Variations", 1986) where the two are
 * alike; where they differ much, the lines that stand exactly once on both sides are matched first, by the
 * longest increasing sequence ("patience"), so that moved blocks cost n log n as well.
 */
[[nodiscard]] std::vector<DiffHunk> diffLines(
    std::span<const quint32> before, std::span<const quint32> after);

} // namespace tw::app::persistence
