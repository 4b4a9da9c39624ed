#pragma once

#include <QtGlobal>

#include <span>
#include <vector>

namespace tw::core::foundation {

/** Part of a sequence: from `first`, `count` of them. */
struct IndexRange
{
    qsizetype first = 0;
    qsizetype count = 0;

    [[nodiscard]] qsizetype end() const { return first + count; }
    friend bool operator==(const IndexRange&, const IndexRange&) = default;
};

/** One change: this part of the old sequence became that of the new one. Either may be empty, not both. */
struct DiffHunk
{
    IndexRange before;
    IndexRange after;

    friend bool operator==(const DiffHunk&, const DiffHunk&) = default;
};

/**
 * What turns one sequence into another, in order; hunks do not touch. Tokens (lines, words) are given as
 * numbers: equal numbers, equal tokens. Any thread.
 *
 * The shortest script by Myers ("An O(ND) Difference Algorithm and Its Variations", 1986) where the two are
 * alike; where they differ much, the tokens that stand exactly once on both sides are matched first, by the
 * longest increasing sequence ("patience"), so that moved blocks cost n log n as well.
 */
[[nodiscard]] std::vector<DiffHunk> diffSequences(
    std::span<const quint32> before, std::span<const quint32> after);

} // namespace tw::core::foundation
