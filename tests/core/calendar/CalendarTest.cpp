#include "core/calendar/Calendar.h"
#include "core/calendar/Reckoning.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

using namespace Qt::Literals::StringLiterals;
using namespace tw::core::calendar;

namespace {

constexpr qint64 day = 1440;
constexpr qint64 lowest = std::numeric_limits<qint64>::min();
constexpr qint64 highest = std::numeric_limits<qint64>::max();

Calendar calendarOf(QList<CalendarMonth> months)
{
    Calendar calendar;
    calendar.setMonths(std::move(months));
    return calendar;
}

/** Counts day by day from the epoch, the way one would on fingers. Only for months of at least one day. */
DateParts countedParts(const Calendar& calendar, StoryInstant instant)
{
    DateParts parts;
    const auto lengthOfMonth = [&] { return calendar.months().at(parts.month - 1).days; };
    qint64 left = instant;
    for (; left >= day; left -= day) {
        if (++parts.day <= lengthOfMonth())
            continue;
        parts.day = 1;
        if (++parts.month > calendar.months().size()) {
            parts.month = 1;
            ++parts.year;
        }
    }
    for (; left < 0; left += day) {
        if (--parts.day >= 1)
            continue;
        if (--parts.month < 1) {
            parts.month = static_cast<qint32>(calendar.months().size());
            --parts.year;
        }
        parts.day = lengthOfMonth();
    }
    parts.hour = static_cast<qint32>(left / 60);
    parts.minute = static_cast<qint32>(left % 60);
    return parts;
}

} // namespace

TEST(Calendar, readsInstantsAroundTheEpochAndAtTheLimits)
{
    const struct
    {
        StoryInstant instant;
        DateParts parts;
        QString text;
    } cases[] = {
        {0, {1, 1, 1, 0, 0}, u"1 January, Year 1 CE"_s},
        {-1, {0, 12, 31, 23, 59}, u"31 December, Year 0 CE, 23:59"_s},
        {-1440, {0, 12, 31, 0, 0}, u"31 December, Year 0 CE"_s},
        {-1441, {0, 12, 30, 23, 59}, u"30 December, Year 0 CE, 23:59"_s},
        {525600, {2, 1, 1, 0, 0}, u"1 January, Year 2 CE"_s},
        {31 * day + 65, {1, 2, 1, 1, 5}, u"1 February, Year 1 CE, 01:05"_s},
        {highest, {17548272520653, 2, 28, 18, 7}, u"28 February, Year 17548272520653 CE, 18:07"_s},
        {lowest, {-17548272520652, 11, 3, 5, 52}, u"3 November, Year -17548272520652 CE, 05:52"_s},
    };
    const Calendar calendar;
    for (const auto& expected : cases) {
        EXPECT_EQ(calendar.partsFromMinutes(expected.instant), expected.parts) << expected.instant;
        EXPECT_EQ(calendar.formatInstant(expected.instant), expected.text) << expected.instant;
        EXPECT_EQ(calendar.minutesFromParts(expected.parts), expected.instant) << expected.instant;
    }
}

TEST(Calendar, carriesPartsThatAreOutOfRange)
{
    const Calendar calendar;
    const auto minutes = [&](DateParts parts) { return calendar.minutesFromParts(parts); };
    EXPECT_EQ(minutes({1, 1, 40, 30, 90}), minutes({1, 2, 10, 7, 30}));
    EXPECT_EQ(minutes({1, 0, 1, 0, 0}), 0);
    EXPECT_EQ(minutes({1, -7, 0, 0, -1}), -day - 1);
    EXPECT_EQ(minutes({1, 14, 1, 0, 0}), 365 * day) << "months that do not exist add nothing";
    EXPECT_EQ(minutes({highest, 12, 31, 23, 59}), highest);
    EXPECT_EQ(minutes({lowest, 1, 1, 0, 0}), lowest);
}

TEST(Calendar, survivesMonthsThatMakeNoSense)
{
    constexpr qint32 longest = std::numeric_limits<qint32>::max();
    constexpr qint32 shortest = std::numeric_limits<qint32>::min();
    const struct
    {
        const char* name;
        Calendar calendar;
        qint32 yearLength;
        StoryInstant instant;
        DateParts parts;
    } cases[] = {
        {"no months", calendarOf({}), 0, -61, {1, 1, 1, 22, 59}},
        {"sum of zero", calendarOf({{u"A"_s, 5}, {u"B"_s, -5}}), 0, 3 * day + 61, {1, 1, 1, 1, 1}},
        {"negative sum", calendarOf({{u"A"_s, shortest}, {u"B"_s, shortest}}), 0, highest, {1, 1, 1, 18, 7}},
        {"sum clamped", calendarOf({{u"A"_s, longest}, {u"B"_s, longest}}), longest, 0, {1, 1, 1, 0, 0}},
        {"a month of no days",
         calendarOf({{u"A"_s, 2}, {u"B"_s, 0}, {u"C"_s, 3}}),
         5,
         2 * day,
         {1, 3, 1, 0, 0}},
        {"a shrinking month", calendarOf({{u"A"_s, 10}, {u"B"_s, -4}}), 6, 5 * day, {1, 1, 6, 0, 0}},
        {"months run out", calendarOf({{u"A"_s, -1}, {u"B"_s, 3}}), 2, 2 * day, {2, 2, 2, 0, 0}},
    };
    for (const auto& expected : cases) {
        EXPECT_EQ(expected.calendar.yearLength(), expected.yearLength) << expected.name;
        EXPECT_EQ(expected.calendar.partsFromMinutes(expected.instant), expected.parts) << expected.name;
    }
    EXPECT_EQ(calendarOf({}).formatInstant(5 * day), u"1 1, Year 1 CE"_s) << "no name to show";
    const Calendar weekless = [] {
        Calendar calendar;
        calendar.setWeekdays({});
        return calendar;
    }();
    EXPECT_EQ(weekless.weekdayOf(0), QString());

    const Calendar huge = calendarOf(QList<CalendarMonth>(200'000, {u"M"_s, longest}));
    EXPECT_EQ(huge.minutesFromParts({1, longest, 1, 0, 0}), 200'000 * qint64{longest} * day);
    EXPECT_EQ(huge.minutesFromParts({highest, longest, longest, longest, longest}), highest);
}

TEST(Calendar, agreesWithCountingOnFingersAndReadsItsOwnPartsBack)
{
    std::mt19937 random(20240611);
    const auto between = [&](qint64 low, qint64 high) {
        return std::uniform_int_distribution<qint64>(low, high)(random);
    };
    for (int round = 0; round < 300; ++round) {
        QList<CalendarMonth> months;
        for (qint64 count = between(1, 15); count > 0; --count)
            months.append({u"M%1"_s.arg(count), static_cast<qint32>(between(1, 40))});
        const Calendar calendar = calendarOf(std::move(months));

        const StoryInstant near = between(-5000 * day, 5000 * day);
        EXPECT_EQ(calendar.partsFromMinutes(near), countedParts(calendar, near)) << near;
        const StoryInstant far = between(lowest, highest);
        EXPECT_EQ(calendar.minutesFromParts(calendar.partsFromMinutes(far)), far) << far;
    }
}

TEST(Calendar, turnsTheWeekAroundTheEpochDay)
{
    const Calendar calendar;
    EXPECT_EQ(calendar.weekdayOf(0), u"Monday"_s);
    EXPECT_EQ(calendar.weekdayOf(-1), u"Sunday"_s);
    EXPECT_EQ(calendar.weekdayOf(-7 * day), u"Monday"_s);
    EXPECT_EQ(calendar.weekdayOf(9 * day + 1439), u"Wednesday"_s);
}

TEST(Calendar, labelsYearsByTheirEra)
{
    using Eras = QList<CalendarEra>;
    const Eras fall{{u"Before Fall"_s, 1, true}, {u"After Fall"_s, 100, false}};
    const struct
    {
        Eras eras;
        qint64 year;
        QString label;
    } cases[] = {
        {{}, 1250, u"1250 CE"_s},
        {fall, 99, u"1 Before Fall"_s},
        {fall, 1, u"99 Before Fall"_s},
        {fall, 0, u"100 Before Fall"_s},
        {fall, 100, u"1 After Fall"_s},
        {{fall.at(1), fall.at(0)}, 99, u"1 Before Fall"_s},
        {{{u"Lone"_s, 10, true}}, 12, u"3 Lone"_s},
        {{{u"First"_s, 10, false}}, 4, u"-5 First"_s},
        {{{QString(), 10, false}}, 10, u"1"_s},
        {{{u"Entered first"_s, 5, false}, {u"Entered later"_s, 5, false}}, 5, u"1 Entered later"_s},
        {{{u"Old"_s, lowest, false}}, highest, u"9223372036854775807 Old"_s},
        {{{u"Old"_s, 0, true}, {u"New"_s, highest, false}}, lowest, u"9223372036854775807 Old"_s},
    };
    for (const auto& expected : cases) {
        Calendar calendar;
        calendar.setEras(expected.eras);
        EXPECT_EQ(calendar.formatYear(expected.year), expected.label) << expected.label.toStdString();
    }
    Calendar bare;
    bare.setEraName({});
    EXPECT_EQ(bare.formatInstant(0), u"1 January, Year 1"_s);
}

TEST(Calendar, writesNamesThatLookLikePlaceholders)
{
    Calendar calendar = calendarOf({{u"%3 %1"_s, 30}});
    calendar.setEraName(u"%2"_s);
    EXPECT_EQ(calendar.formatInstant(0), u"1 %3 %1, Year 1 %2"_s);
}

TEST(Reckoning, countsFromItsOwnEpoch)
{
    Reckoning republic{u"Republic"_s, {}, 100 * 365 * day};
    republic.calendar.setEraName(u"of the Republic"_s);
    EXPECT_EQ(formatInstantIn(republic, 100 * 365 * day), u"1 January, Year 1 of the Republic"_s);
    EXPECT_EQ(formatInstantIn(republic, 0), u"1 January, Year -99 of the Republic"_s);
    EXPECT_EQ(formatInstantIn(republic, lowest), republic.calendar.formatInstant(lowest));
    republic.epochOffsetMinutes = lowest;
    EXPECT_EQ(formatInstantIn(republic, 1), republic.calendar.formatInstant(highest));
}
