#include "app/persistence/merge/LineMerge.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <optional>
#include <random>

namespace tw::app::persistence {

using namespace Qt::Literals::StringLiterals;

namespace {

/** A text by the numbers of its lines. */
using Numbers = std::vector<int>;

/** "a b c" as three lines. */
QByteArray lines(const char* words)
{
    QByteArray text = QByteArray(words).simplified().replace(' ', '\n');
    return text.isEmpty() ? text : text + '\n';
}

QByteArray joined(const Numbers& numbers)
{
    QByteArray text;
    for (const int number : numbers)
        text += "line " + QByteArray::number(number) + '\n';
    return text;
}

/** Replaces, inserts and removes a few lines; new ones come from `fresh` upwards. */
Numbers edited(Numbers numbers, int edits, int& fresh, std::mt19937& random)
{
    for (; edits > 0; --edits) {
        const auto place = static_cast<std::ptrdiff_t>(random() % (numbers.size() + 1));
        const auto kind = random() % 3;
        if (kind == 0 || place == std::ssize(numbers))
            numbers.insert(numbers.begin() + place, fresh++);
        else if (kind == 1)
            numbers[static_cast<std::size_t>(place)] = fresh++;
        else
            numbers.erase(numbers.begin() + place);
    }
    return numbers;
}

/** The lines `first` to `end` of the base give way to others. */
struct PlainChange
{
    std::size_t first = 0;
    std::size_t end = 0;
    Numbers lines;
};

/** What one side changed. No line stands twice or moves, so whatever both texts hold was kept. */
std::vector<PlainChange> plainChanges(const Numbers& base, const Numbers& side)
{
    std::vector<PlainChange> changes;
    std::size_t line = 0;
    std::size_t before = 0;
    for (std::size_t kept = 0; kept <= base.size(); ++kept) {
        const auto found = kept < base.size() ? std::ranges::find(side, base[kept]) : side.end();
        if (kept < base.size() && found == side.end())
            continue;
        const auto place = static_cast<std::size_t>(found - side.begin());
        if (kept != line || place != before)
            changes.push_back(
                {line, kept,
                 Numbers(side.begin() + std::ptrdiff_t(before), side.begin() + std::ptrdiff_t(place))});
        line = kept + 1;
        before = place + 1;
    }
    return changes;
}

/** By every line of both, and by the places between lines where only something was put in. */
bool concernTheSame(const PlainChange& one, const PlainChange& other)
{
    if (one.first == one.end && other.first == other.end)
        return one.first == other.first;
    for (std::size_t line = one.first; line < one.end; ++line) {
        if (other.first <= line && line < other.end)
            return true;
    }
    const auto isInside = [](const PlainChange& inserted, const PlainChange& around) {
        return inserted.first == inserted.end && around.first < inserted.first && inserted.first < around.end;
    };
    return isInside(one, other) || isInside(other, one);
}

/** The lines of the base from `first` to `end` with the changes of a side that lie there. */
Numbers changedPart(
    const Numbers& base, const std::vector<PlainChange>& changes, std::size_t first, std::size_t end)
{
    Numbers result;
    std::size_t line = first;
    for (const PlainChange& change : changes) {
        if (change.first < first || change.end > end)
            continue;
        for (; line < change.first; ++line)
            result.push_back(base[line]);
        result.insert(result.end(), change.lines.begin(), change.lines.end());
        line = change.end;
    }
    for (; line < end; ++line)
        result.push_back(base[line]);
    return result;
}

/** What a merge has to give, found by comparing every change with every other one; none for a conflict. */
std::optional<Numbers> plainMerge(const Numbers& base, const Numbers& mine, const Numbers& theirs)
{
    const std::vector<PlainChange> sides[] = {plainChanges(base, mine), plainChanges(base, theirs)};
    std::vector<PlainChange> applied;
    std::vector<bool> isTaken[] = {std::vector<bool>(sides[0].size()), std::vector<bool>(sides[1].size())};
    for (std::size_t side = 0; side < 2; ++side) {
        for (std::size_t each = 0; each < sides[side].size(); ++each) {
            if (isTaken[side][each])
                continue;
            // Everything that hangs together with it, of both sides.
            std::vector<PlainChange> group[2];
            std::vector<std::pair<std::size_t, std::size_t>> open{{side, each}};
            isTaken[side][each] = true;
            while (!open.empty()) {
                const auto [of, which] = open.back();
                open.pop_back();
                const PlainChange& member = sides[of][which];
                group[of].push_back(member);
                for (std::size_t other = 0; other < sides[1 - of].size(); ++other) {
                    if (!isTaken[1 - of][other] && concernTheSame(member, sides[1 - of][other])) {
                        isTaken[1 - of][other] = true;
                        open.emplace_back(1 - of, other);
                    }
                }
            }
            std::size_t first = base.size();
            std::size_t end = 0;
            for (std::vector<PlainChange>& members : group) {
                std::ranges::sort(members, {}, &PlainChange::first);
                for (const PlainChange& member : members) {
                    first = std::min(first, member.first);
                    end = std::max(end, member.end);
                }
            }
            const Numbers lines = changedPart(base, group[side], first, end);
            if (!group[1 - side].empty() && changedPart(base, group[1 - side], first, end) != lines)
                return std::nullopt;
            applied.push_back({first, end, lines});
        }
    }
    // What is put in before a changed line comes before it.
    std::ranges::sort(
        applied, {}, [](const PlainChange& change) { return std::pair(change.first, change.end); });
    return changedPart(base, applied, 0, base.size());
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

TEST(LineMergeTest, mergesByTheRules)
{
    const struct
    {
        const char* name;
        const char* base;
        const char* mine;
        const char* theirs;
        const char* merged; // null: a conflict
    } cases[] = {
        {"nothing", "a b c", "a b c", "a b c", "a b c"},
        {"mine only", "a b c", "a X c", "a b c", "a X c"},
        {"theirs only", "a b c", "a b c", "a b Y", "a b Y"},
        {"apart", "a b c d e", "X b c d e", "a b c d Y", "X b c d Y"},
        {"adjacent lines", "a b c d", "a X c d", "a b Y d", "a X Y d"},
        {"same change", "a b c", "a X c", "a X c", "a X c"},
        {"same line", "a b c", "a X c", "a Y c", nullptr},
        {"same insertion", "a b", "a X b", "a X b", "a X b"},
        {"two insertions at one place", "a b", "a X b", "a Y b", nullptr},
        {"insertion before a changed line", "a b c", "a X b c", "a Y c", "a X Y c"},
        {"deleted and changed", "a b c", "a c", "a Y c", nullptr},
        {"both deleted", "a b c", "a c", "a c", "a c"},
        {"deleted apart", "a b c d e", "b c d e", "a b c d", "b c d"},
        {"insertion inside a deletion", "a b c d", "a d", "a b X c d", nullptr},
        {"all gone", "a b", "", "a b", ""},
        {"from nothing", "", "a", "a", "a"},
        {"from nothing, differently", "", "a", "b", nullptr},
    };
    for (const auto& sample : cases) {
        const LineMerge merge = mergeLines(lines(sample.base), lines(sample.mine), lines(sample.theirs));
        EXPECT_EQ(merge.isClean(), sample.merged != nullptr) << sample.name;
        if (sample.merged) {
            EXPECT_EQ(merge.text, lines(sample.merged)) << sample.name;
        }
        const LineMerge mirrored = mergeLines(lines(sample.base), lines(sample.theirs), lines(sample.mine));
        EXPECT_EQ(mirrored.isClean(), merge.isClean()) << sample.name;
    }
}

TEST(LineMergeTest, conflictsKeepBothVersionsAndFinalNewlinesSurvive)
{
    const LineMerge conflict = mergeLines("a\nb\nc", "a\nX\nc", "a\nY\nc");
    EXPECT_EQ(conflict.text, "a\n<<<<<<<\nX\n=======\nY\n>>>>>>>\nc");
    ASSERT_EQ(conflict.conflicts.size(), 1U);
    EXPECT_EQ(conflict.conflicts[0], (MergeConflict{{1, 1}, {1, 1}, {1, 1}}));
    EXPECT_EQ(mergeLines("a\nb", "X\nb", "a\nb").text, "X\nb");
    EXPECT_EQ(mergeLines("a\nb\n", "X\nb\n", "a\nb").text, "X\nb") << "taken away on one side";
    EXPECT_EQ(mergeLines("a\nm\nb", "X\nm\nb", "a\nm\nb\nc\n").text, "X\nm\nb\nc\n");
}

TEST(LineMergeTest, agreesWithAComparisonOfEveryChangeWithEveryOther)
{
    std::mt19937 random(7);
    int clean = 0;
    int conflicts = 0;
    for (int round = 0; round < 20'000; ++round) {
        int fresh = 100;
        Numbers base(random() % 12);
        std::iota(base.begin(), base.end(), 0);
        const Numbers mine = edited(base, static_cast<int>(random() % 5), fresh, random);
        // Now and then some changes are the same on both sides.
        const Numbers theirs =
            edited(random() % 3 == 0 ? mine : base, static_cast<int>(random() % 5), fresh, random);
        const LineMerge merge = mergeLines(joined(base), joined(mine), joined(theirs));
        const std::optional<Numbers> expected = plainMerge(base, mine, theirs);
        ASSERT_EQ(merge.isClean(), expected.has_value()) << "round " << round;
        ++(expected ? clean : conflicts);
        if (!expected)
            continue;
        ASSERT_EQ(merge.text, joined(*expected)) << "round " << round;
        // Nothing that either side wrote is missing, and nothing that either side deleted is back.
        for (int number = 0; number < fresh; ++number) {
            const auto isIn = [number](const Numbers& text) { return std::ranges::count(text, number) > 0; };
            const bool isWanted = isIn(base) ? isIn(mine) && isIn(theirs) : isIn(mine) || isIn(theirs);
            ASSERT_EQ(merge.text.contains(joined({number})), isWanted) << "round " << round;
        }
    }
    EXPECT_GT(clean, 5000);
    EXPECT_GT(conflicts, 2000);
}

TEST(LineMergeTest, agreesWithTheVersionControlToolWhereItMergesCleanly)
{
    const QString git = QStandardPaths::findExecutable(u"git"_s);
    if (git.isEmpty())
        GTEST_SKIP() << "git is not installed";
    const QTemporaryDir folder;
    std::mt19937 random(42);
    int clean = 0;
    for (int round = 0; round < 1000; ++round) {
        int fresh = 1000;
        Numbers base(8 + random() % 30);
        std::iota(base.begin(), base.end(), 0);
        const auto mine = edited(base, 1 + static_cast<int>(random() % 4), fresh, random);
        const auto theirs = edited(base, 1 + static_cast<int>(random() % 4), fresh, random);
        write(folder.filePath(u"base"_s), joined(base));
        write(folder.filePath(u"mine"_s), joined(mine));
        write(folder.filePath(u"theirs"_s), joined(theirs));
        QProcess tool;
        tool.setWorkingDirectory(folder.path());
        tool.start(git, {u"merge-file"_s, u"-p"_s, u"-q"_s, u"mine"_s, u"base"_s, u"theirs"_s});
        ASSERT_TRUE(tool.waitForFinished());
        const LineMerge merge = mergeLines(joined(base), joined(mine), joined(theirs));
        if (tool.exitCode() == 0) {
            ++clean;
            ASSERT_TRUE(merge.isClean()) << "round " << round;
            ASSERT_EQ(merge.text, tool.readAllStandardOutput()) << "round " << round;
        }
    }
    EXPECT_GT(clean, 300);
}

} // namespace tw::app::persistence
