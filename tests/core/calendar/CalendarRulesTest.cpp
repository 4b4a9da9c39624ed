#include "core/calendar/CalendarRules.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace tw::core::calendar;

TEST(CalendarRules, namesTheFirstThingToPutRight)
{
    const CalendarDraft sound{
        {{u"Thaw"_s, 40}},
        {u"Firstday"_s},
        u"AF"_s,
        {{u"Old"_s, u"-3"_s, true}, {u"New"_s, u" 12 "_s, false}}};
    const struct
    {
        QString message;
        void (*spoil)(CalendarDraft&);
    } cases[] = {
        {{}, [](CalendarDraft&) {}},
        {{}, [](CalendarDraft& draft) { draft.eras.clear(); }},
        {u"A calendar needs at least one month."_s, [](CalendarDraft& draft) { draft = {}; }},
        {u"Every month needs a name."_s,
         [](CalendarDraft& draft) {
             draft.months = {{u"Long"_s, 0}, {u"  "_s, 3}};
         }},
        {u"Every month needs a length of at least one day."_s,
         [](CalendarDraft& draft) {
             draft.months.append({u"Never"_s, 0});
             draft.weekdays.clear();
         }},
        {u"A calendar needs at least one weekday."_s,
         [](CalendarDraft& draft) {
             draft.weekdays.clear();
             draft.eras.append({u" "_s, u"1"_s, false});
         }},
        {u"Every era needs a name."_s,
         [](CalendarDraft& draft) {
             draft.eras.append({{}, u"x"_s, false});
         }},
        {u"Every era needs a whole-number start year."_s,
         [](CalendarDraft& draft) {
             draft.eras.append({u"Late"_s, u"1.5"_s, false});
         }},
    };
    for (const auto& expected : cases) {
        CalendarDraft draft = sound;
        expected.spoil(draft);
        EXPECT_EQ(checkCalendarDraft(draft).message(), expected.message) << expected.message.toStdString();
    }
    const Calendar calendar = calendarFromDraft(sound);
    EXPECT_EQ(calendar.eras(), (QList<CalendarEra>{{u"Old"_s, -3, true}, {u"New"_s, 12, false}}));
    EXPECT_EQ(calendar.formatInstant(0), u"1 Thaw, Year 11 Old"_s);
}
