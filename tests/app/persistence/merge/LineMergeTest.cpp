#include "app/persistence/merge/LineMerge.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <numeric>
#include <random>

namespace tw::app::persistence {

using namespace Qt::Literals::StringLiterals;

namespace {

/** "a b c" as three lines. */
QByteArray lines(const char* words)
{
    QByteArray text = QByteArray(words).simplified().replace(' ', '\n');
    return text.isEmpty() ? text : text + '\n';
}

QByteArray joined(const std::vector<int>& numbers)
{
    QByteArray text;
    for (const int number : numbers)
        text += "line " + QByteArray::number(number) + '\n';
    return text;
}

/** Replaces, inserts and removes a few lines; new ones come from `fresh` upwards. */
std::vector<int> edited(std::vector<int> numbers, int edits, int& fresh, std::mt19937& random)
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
        std::vector<int> base(8 + random() % 30);
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
