#include "core/calendar/DateReader.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::Literals::StringLiterals;
using namespace tw::core::calendar;

namespace {

Calendar harvestCalendar()
{
    Calendar calendar;
    calendar.setMonths(
        {{u"Harvestmoon"_s, 30}, {u"Harrow"_s, 20}, {u"Deep Winter"_s, 10}, {u"Deep Frost"_s, 10}});
    return calendar;
}

} // namespace

TEST(DateReader, acceptsWhatPeopleType)
{
    const struct
    {
        QString text;
        DateParts parts;
    } cases[] = {
        {u"1250"_s, {1250, 1, 1, 0, 0}},
        {u"  -3 ce "_s, {-3, 1, 1, 0, 0}},
        {u"YEAR +7"_s, {7, 1, 1, 0, 0}},
        {u"Harvestmoon 1250"_s, {1250, 1, 1, 0, 0}},
        {u"25 Harvestmoon 1250"_s, {1250, 1, 25, 0, 0}},
        {u"Harvestmoon 25, 1250"_s, {1250, 1, 25, 0, 0}},
        {u"25 1250 Harvestmoon"_s, {1250, 1, 25, 0, 0}},
        {u"025 Harvestmoon 01250"_s, {1250, 1, 25, 0, 0}},
        {u"25 Harvestmoon, Year 1250 CE, 14:05"_s, {1250, 1, 25, 14, 5}},
        {u"7:05 harv 1250"_s, {1250, 1, 1, 7, 5}},
        {u"Harvestmoon 25"_s, {25, 1, 1, 0, 0}},
        {u"3 deep winter, year 4"_s, {4, 3, 3, 0, 0}},
        {u"3 Deep,Frost 4"_s, {4, 4, 3, 0, 0}},
        {u"1000000000000"_s, {1000000000000, 1, 1, 0, 0}},
    };
    for (const auto& expected : cases)
        EXPECT_EQ(parseDate(harvestCalendar(), expected.text), expected.parts) << expected.text.toStdString();
}

TEST(DateReader, refusesWhatIsNoDate)
{
    const QString cases[] = {
        {},
        u"   "_s,
        u"14:05"_s,
        u"Year"_s,
        u"24:00 1250"_s,
        u"1250 12:60"_s,
        u"Harvestmoon"_s,
        u"25 Harvestmoon"_s,
        u"Harvestmoon 025"_s,
        u"Harvestmoon +25"_s,
        u"31 Harvestmoon 1250"_s,
        u"0 Harvestmoon 1250"_s,
        u"4294967297 Harvestmoon 1250"_s,
        u"Har 1250"_s,
        u"Deep 1250"_s,
        u"Harvestmoon Harrow 1250"_s,
        u"Harvestmoon Harvestmoon 1250"_s,
        u"1 2 Harvestmoon 1250"_s,
        u"1250 1251"_s,
        u"12.5"_s,
        u"Harvestmoons 1250"_s,
        u"1000000000001"_s,
        u"-1000000000001"_s,
        u"99999999999999999999 Harvestmoon 3"_s,
        QString(100'000, u'9'),
    };
    for (const QString& text : cases)
        EXPECT_EQ(parseDate(harvestCalendar(), text), std::nullopt) << text.left(60).toStdString();
}

TEST(DateReader, prefersWholeNamesAndKeepsEqualPrefixesAmbiguous)
{
    Calendar calendar;
    calendar.setMonths({{u"Maying"_s, 30}, {u"May"_s, 30}, {u"Twin"_s, 30}, {u"Twin"_s, 30}, {QString(), 5}});
    EXPECT_EQ(parseDate(calendar, u"may 5"), (DateParts{5, 2, 1, 0, 0}));
    EXPECT_EQ(parseDate(calendar, u"mayi 5"), (DateParts{5, 1, 1, 0, 0}));
    EXPECT_EQ(parseDate(calendar, u"Twin 5"), (DateParts{5, 3, 1, 0, 0}));
    EXPECT_EQ(parseDate(calendar, u"Tw 5"), std::nullopt);
    calendar.setMonths({});
    EXPECT_EQ(parseDate(calendar, u"5"), (DateParts{5, 1, 1, 0, 0}));
    EXPECT_EQ(parseDate(calendar, u"May 5"), std::nullopt);
}

TEST(DateReader, readsBackWhatTheCalendarWrites)
{
    Calendar wordy;
    wordy.setMonths(
        {{u"Deep Winter"_s, 12}, {u"Deep Winter Night"_s, 30}, {u"Month 3"_s, 9}, {u"Rain, Late"_s, 40}});
    wordy.setEraName(u"Age of the Deep"_s);
    std::mt19937 random(7);
    std::uniform_int_distribution<qint64> instants(-500'000'000, 500'000'000);
    for (const Calendar& calendar : {Calendar(), harvestCalendar(), wordy}) {
        for (int round = 0; round < 200; ++round) {
            const StoryInstant instant = instants(random);
            const QString text = calendar.formatInstant(instant);
            EXPECT_EQ(parseDate(calendar, text), calendar.partsFromMinutes(instant)) << text.toStdString();
        }
    }
}
