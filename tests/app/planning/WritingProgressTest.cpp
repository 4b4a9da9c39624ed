#include "app/planning/WritingProgress.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::planning {

namespace {

const QDate today(2026, 3, 10);

QString before(int days)
{
    return today.addDays(-days).toString(Qt::ISODate);
}

} // namespace

TEST(WritingProgress, paceCountsTheDaysThatAreLeftWithToday)
{
    const struct
    {
        const char* name;
        qint64 target;
        QString deadline;
        qint64 total;
        qint64 wordsToday;
        qint64 wordsLeft;
        std::optional<qint64> daysLeft;
        std::optional<qint64> wordsPerDay;
        bool isOverdue = false;
    } cases[] = {
        {"no goal", 0, {}, 500, 0, 0, {}, {}},
        {"no deadline", 1000, {}, 400, 0, 600, {}, {}},
        {"ten days", 1000, u"2026-03-19"_s, 400, 0, 600, 10, 60},
        {"rounded up", 1000, u"2026-03-19"_s, 399, 0, 601, 10, 61},
        {"the day's own words do not lower its rate", 1000, u"2026-03-19"_s, 450, 50, 550, 10, 60},
        {"words taken out today do not lower it either", 1000, u"2026-03-19"_s, 400, -50, 600, 10, 60},
        {"the last day", 1000, u"2026-03-10"_s, 400, 0, 600, 1, 600},
        {"too late", 1000, u"2026-03-09"_s, 400, 0, 600, 0, {}, true},
        {"reached", 1000, u"2026-03-09"_s, 1200, 0, 0, 0, {}},
        {"a deadline alone", 0, u"2026-03-11"_s, 1200, 0, 0, 2, {}},
        {"a deadline that is none", 1000, u"soon"_s, 400, 0, 600, {}, {}},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        const Pace pace = paceTowards({0, row.target, row.deadline}, row.total, row.wordsToday, today);
        EXPECT_EQ(pace.wordsLeft, row.wordsLeft);
        EXPECT_EQ(pace.daysLeft, row.daysLeft);
        EXPECT_EQ(pace.wordsPerDay, row.wordsPerDay);
        EXPECT_EQ(pace.isOverdue, row.isOverdue);
    }
}

TEST(WritingProgress, theLogKeepsWhatItCannotRead)
{
    const WritingLog log{{u"someday"_s, 7}, {before(1), 300}, {before(0), 20}, {before(0), 30}};
    EXPECT_EQ(wordsOn(log, today), 50);
    EXPECT_EQ(wordsOn(log, today.addDays(-2)), 0);
    EXPECT_EQ(
        withWordsOn(log, today, 80), (WritingLog{{u"someday"_s, 7}, {before(1), 300}, {before(0), 80}}));
    EXPECT_EQ(withWordsOn({}, today, 0), WritingLog());
    EXPECT_EQ(withWordsOn({}, today, -5), (WritingLog{{before(0), -5}}));
    EXPECT_EQ(withWordsOn({{before(0), 5}}, today, 0), (WritingLog{{before(0), 0}}));
}

TEST(WritingProgress, daysInARow)
{
    EXPECT_EQ(streak({}, today), 0);
    EXPECT_EQ(streak({{before(0), 1}}, today), 1);
    EXPECT_EQ(streak({{before(1), 1}, {before(2), 1}, {before(4), 1}}, today), 2) << "today is not over";
    EXPECT_EQ(streak({{before(1), -1}, {before(2), 1}}, today), 0);

    const std::vector<DayWords> days = lastDays({{before(9), 1}, {before(2), 5}, {before(-1), 9}}, today, 3);
    ASSERT_EQ(days.size(), 3U);
    EXPECT_EQ(days[0].day, today.addDays(-2));
    EXPECT_EQ(days[0].words, 5);
    EXPECT_EQ(days[1].words + days[2].words, 0);
}

} // namespace tw::app::planning
