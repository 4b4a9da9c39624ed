#include "core/foundation/SequenceDiff.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tw::core::foundation {

TEST(SequenceDiffTest, scriptsTurnOneIntoTheOtherWhateverTheSize)
{
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        // Few different lines make many ways to match; large and unlike texts take the way over anchors.
        const auto size = round % 10 == 0 ? 3000 : random() % 60;
        const auto kinds = round % 10 == 0 ? 2500 : 1 + random() % 12;
        std::vector<quint32> before(size);
        std::vector<quint32> after(round % 3 == 0 ? random() % 40 : size);
        for (auto* const side : {&before, &after})
            std::ranges::generate(*side, [&] { return static_cast<quint32>(random() % kinds); });
        std::vector<quint32> rebuilt;
        qsizetype position = 0;
        const auto copyUntil = [&](qsizetype end) {
            for (; position < end; ++position)
                rebuilt.push_back(before[static_cast<std::size_t>(position)]);
        };
        for (const DiffHunk& hunk : diffSequences(before, after)) {
            copyUntil(hunk.before.first);
            ASSERT_EQ(std::ssize(rebuilt), hunk.after.first);
            for (qsizetype index = hunk.after.first; index < hunk.after.end(); ++index)
                rebuilt.push_back(after[static_cast<std::size_t>(index)]);
            position = hunk.before.end();
        }
        copyUntil(std::ssize(before));
        ASSERT_EQ(rebuilt, after);
    }
}

} // namespace tw::core::foundation
