#include "core/foundation/SequenceDiff.h"

#include <QHash>

#include <algorithm>
#include <optional>

namespace tw::core::foundation {

namespace {

using Tokens = std::span<const quint32>;

/** Beyond so many edits the shortest script is not worth its time. */
constexpr qsizetype longestScript = 512;

struct Match
{
    qsizetype before = 0;
    qsizetype after = 0;
};

Tokens slice(Tokens tokens, IndexRange range)
{
    return tokens.subspan(static_cast<std::size_t>(range.first), static_cast<std::size_t>(range.count));
}

/**
 * The greedy algorithm: for every number of edits, how far each diagonal (x - y) gets. The rows are kept,
 * since the script is read from them backwards.
 */
class ShortestScript
{
public:
    ShortestScript(Tokens before, Tokens after)
        : m_before(before)
        , m_after(after)
    {}

    /** The matched tokens in order, or none when more than `longestScript` edits are needed. */
    [[nodiscard]] std::optional<std::vector<Match>> run()
    {
        const qsizetype limit =
            std::min<qsizetype>(longestScript, std::ssize(m_before) + std::ssize(m_after));
        for (qsizetype edits = 0; edits <= limit; ++edits) {
            m_rows.emplace_back(static_cast<std::size_t>(2 * edits + 1), 0);
            for (qsizetype diagonal = -edits; diagonal <= edits; diagonal += 2) {
                const qsizetype x = slide(startOf(edits, diagonal), diagonal);
                reached(edits, diagonal) = x;
                if (x >= std::ssize(m_before) && x - diagonal >= std::ssize(m_after))
                    return walkBack(edits);
            }
        }
        return std::nullopt;
    }

private:
    [[nodiscard]] qsizetype& reached(qsizetype edits, qsizetype diagonal)
    {
        return m_rows[static_cast<std::size_t>(edits)][static_cast<std::size_t>(diagonal + edits)];
    }

    /** True when the diagonal is best entered by an insertion, from the diagonal above. */
    [[nodiscard]] bool isInsertion(qsizetype edits, qsizetype diagonal)
    {
        return diagonal == -edits ||
               (diagonal != edits && reached(edits - 1, diagonal - 1) < reached(edits - 1, diagonal + 1));
    }

    [[nodiscard]] qsizetype startOf(qsizetype edits, qsizetype diagonal)
    {
        if (edits == 0)
            return 0;
        return isInsertion(edits, diagonal) ? reached(edits - 1, diagonal + 1)
                                            : reached(edits - 1, diagonal - 1) + 1;
    }

    [[nodiscard]] qsizetype slide(qsizetype x, qsizetype diagonal) const
    {
        while (x < std::ssize(m_before) && x - diagonal < std::ssize(m_after) &&
               m_before[static_cast<std::size_t>(x)] == m_after[static_cast<std::size_t>(x - diagonal)])
            ++x;
        return x;
    }

    [[nodiscard]] std::vector<Match> walkBack(qsizetype edits)
    {
        std::vector<Match> matches;
        qsizetype x = std::ssize(m_before);
        qsizetype diagonal = x - std::ssize(m_after);
        for (; edits >= 0; --edits) {
            const qsizetype start = startOf(edits, diagonal);
            for (; x > start; --x)
                matches.push_back({x - 1, x - 1 - diagonal});
            if (edits == 0)
                break;
            const bool wasInsertion = isInsertion(edits, diagonal);
            x = wasInsertion ? start : start - 1;
            diagonal += wasInsertion ? 1 : -1;
        }
        std::ranges::reverse(matches);
        return matches;
    }

    Tokens m_before;
    Tokens m_after;
    std::vector<std::vector<qsizetype>> m_rows;
};

/** The tokens that stand once on each side, as the longest sequence that increases on both. */
std::vector<Match> uniqueMatches(Tokens before, Tokens after)
{
    struct Places
    {
        int beforeCount = 0;
        int afterCount = 0;
        qsizetype after = 0;
    };
    QHash<quint32, Places> places;
    places.reserve(std::ssize(before));
    for (const quint32 token : before)
        ++places[token].beforeCount;
    for (qsizetype index = 0; index < std::ssize(after); ++index) {
        if (const auto place = places.find(after[static_cast<std::size_t>(index)]); place != places.end()) {
            ++place->afterCount;
            place->after = index;
        }
    }
    std::vector<Match> candidates;
    std::vector<qsizetype> previous;
    std::vector<qsizetype> piles;
    for (qsizetype index = 0; index < std::ssize(before); ++index) {
        const Places& place = *places.constFind(before[static_cast<std::size_t>(index)]);
        if (place.beforeCount != 1 || place.afterCount != 1)
            continue;
        const auto pile =
            std::ranges::lower_bound(piles, place.after, {}, [&candidates](qsizetype candidate) {
                return candidates[static_cast<std::size_t>(candidate)].after;
            });
        previous.push_back(pile == piles.begin() ? -1 : *std::prev(pile));
        candidates.push_back({index, place.after});
        const qsizetype newest = std::ssize(candidates) - 1;
        if (pile == piles.end())
            piles.push_back(newest);
        else
            *pile = newest;
    }
    std::vector<Match> sequence;
    for (qsizetype index = piles.empty() ? -1 : piles.back(); index >= 0;
         index = previous[static_cast<std::size_t>(index)])
        sequence.push_back(candidates[static_cast<std::size_t>(index)]);
    std::ranges::reverse(sequence);
    return sequence;
}

class Differ
{
public:
    Differ(Tokens before, Tokens after)
        : m_before(before)
        , m_after(after)
    {}

    [[nodiscard]] std::vector<DiffHunk> run()
    {
        compare({0, std::ssize(m_before)}, {0, std::ssize(m_after)});
        return std::move(m_hunks);
    }

private:
    [[nodiscard]] bool isEqual(qsizetype before, qsizetype after) const
    {
        return m_before[static_cast<std::size_t>(before)] == m_after[static_cast<std::size_t>(after)];
    }

    void compare(IndexRange before, IndexRange after)
    {
        while (before.count > 0 && after.count > 0 && isEqual(before.first, after.first)) {
            before = {before.first + 1, before.count - 1};
            after = {after.first + 1, after.count - 1};
        }
        while (before.count > 0 && after.count > 0 && isEqual(before.end() - 1, after.end() - 1)) {
            --before.count;
            --after.count;
        }
        if (before.count == 0 || after.count == 0) {
            addHunk(before, after);
            return;
        }
        const Tokens beforeTokens = slice(m_before, before);
        const Tokens afterTokens = slice(m_after, after);
        if (const auto matches = ShortestScript(beforeTokens, afterTokens).run())
            split(
                *matches, before, after, [this](IndexRange left, IndexRange right) { addHunk(left, right); });
        else if (const auto anchors = uniqueMatches(beforeTokens, afterTokens); !anchors.empty())
            split(
                anchors, before, after, [this](IndexRange left, IndexRange right) { compare(left, right); });
        else
            addHunk(before, after);
    }

    /** Hands over the gaps between matched tokens, which count from the start of the ranges. */
    template <class Gap>
    void split(const std::vector<Match>& matches, IndexRange before, IndexRange after, Gap gap)
    {
        qsizetype nextBefore = before.first;
        qsizetype nextAfter = after.first;
        for (const Match& match : matches) {
            const qsizetype matchBefore = before.first + match.before;
            const qsizetype matchAfter = after.first + match.after;
            gap({nextBefore, matchBefore - nextBefore}, {nextAfter, matchAfter - nextAfter});
            nextBefore = matchBefore + 1;
            nextAfter = matchAfter + 1;
        }
        gap({nextBefore, before.end() - nextBefore}, {nextAfter, after.end() - nextAfter});
    }

    void addHunk(IndexRange before, IndexRange after)
    {
        if (before.count == 0 && after.count == 0)
            return;
        if (!m_hunks.empty() && m_hunks.back().before.end() == before.first &&
            m_hunks.back().after.end() == after.first) {
            m_hunks.back().before.count += before.count;
            m_hunks.back().after.count += after.count;
            return;
        }
        m_hunks.push_back({before, after});
    }

    Tokens m_before;
    Tokens m_after;
    std::vector<DiffHunk> m_hunks;
};

} // namespace

std::vector<DiffHunk> diffSequences(std::span<const quint32> before, std::span<const quint32> after)
{
    return Differ(before, after).run();
}

} // namespace tw::core::foundation
