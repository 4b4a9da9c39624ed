#include "app/mcp/ChangingToolFixture.h"
#include "app/mcp/ToolFamilies.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::calendar::Calendar;

namespace {

class CalendarToolsTest : public ChangingToolFixture
{
protected:
    CalendarToolsTest()
        : ChangingToolFixture({registerCalendarTools})
    {}
};

} // namespace

TEST_F(CalendarToolsTest, readsEverythingThatDatesAreWrittenIn)
{
    const QString text = call("get_calendar").text;
    for (const QString& part :
         {u"Months (365 days a year):"_s, u"2. February: 28 days"_s, u"Weekdays: Monday, Tuesday"_s,
          u"Named eras: none. Years carry the era label: CE"_s, u"1 January 1250, 14:05"_s})
        EXPECT_TRUE(text.contains(part)) << text.toStdString();

    Calendar calendar;
    calendar.setMonths({{u"Long %1"_s, 40}});
    calendar.setEras({{u"Before Fall"_s, -99, true}, {u"After Fall"_s, 1, false}});
    workspace.projectForEdit().setCalendar(calendar);
    workspace.projectForEdit().setReckonings({{u"Republic"_s, calendar, 0}});
    const QString eras = call("get_calendar").text;
    for (const QString& part :
         {u"1. Long %1: 40 days"_s, u"- Before Fall: from year -99, counts down"_s,
          u"- After Fall: from year 1\n"_s, u"- Republic"_s})
        EXPECT_TRUE(eras.contains(part)) << eras.toStdString();
}

TEST_F(CalendarToolsTest, changesOnlyWhatIsGiven)
{
    const QString label = u"MCP: update calendar"_s;
    const auto answer = [](const QString& parts) {
        return u"Updated the calendar (%1). Stored instants are unchanged and now read in the new calendar."_s
            .arg(parts);
    };
    expectChange(
        "update_calendar", label,
        {R"({"months":[{"name":" Frost ","days":30},{"name":"Thaw","days":31}],"era_name":null})",
         answer(u"months, era label"_s)});
    EXPECT_EQ(project().calendar().months().at(0).name, u"Frost");
    EXPECT_EQ(project().calendar().yearLength(), 61);
    EXPECT_EQ(project().calendar().weekdays().size(), 7);
    EXPECT_TRUE(project().calendar().eraName().isEmpty());
    expectChange(
        "update_calendar", label,
        {R"({"weekdays":["One","Two"],"eras":[{"name":"B","start_year":5},{"name":"A","start_year":-5,"counts_down":true}]})",
         answer(u"weekdays, eras"_s)});
    EXPECT_EQ(project().calendar().eras().at(0).name, u"A");
    EXPECT_TRUE(project().calendar().eras().at(0).countsDown);
    expectNothingToDo(
        "update_calendar",
        {{R"({"weekdays":["One","Two"]})", u"The calendar already matches; nothing changed."_s}});
    expectChange("update_calendar", label, {R"({"eras":[]})", answer(u"eras"_s)});
}

TEST_F(CalendarToolsTest, refusesCalendarsThatCannotBeRead)
{
    const QString nothing = u"Provide at least one of \"months\", \"weekdays\", \"era_name\", or \"eras\"."_s;
    expectRefused(
        "update_calendar",
        {{"{}", nothing},
         {R"({"month":[]})", nothing},
         {R"({"months":[]})", u"A calendar needs at least one month."_s},
         {R"({"months":null})", u"A calendar needs at least one month."_s},
         {R"({"months":[{"name":" ","days":3}]})", u"Every month needs a name."_s},
         {R"({"months":[{"name":"A","days":0}]})", u"Every month needs a length of at least one day."_s},
         {R"({"months":[{"name":"A","days":-3}]})", u"Every month needs a length of at least one day."_s},
         {R"({"months":[{"name":"A","days":4000000000}]})",
          u"4000000000 days are too many for the month 'A'; it can have 2147483647 at most."_s},
         {R"({"months":[{"name":"A"}]})", u"Entry 1 of \"months\" needs \"name\" and \"days\"."_s},
         {R"({"months":"many"})", u"\"months\" must be a list."_s},
         {R"({"weekdays":[]})", u"A calendar needs at least one weekday."_s},
         {R"({"eras":[{"name":"","start_year":1}]})", u"Every era needs a name."_s},
         {R"({"eras":[{"name":"A","start_year":1.5}]})",
          u"Entry 1 of \"eras\" needs \"name\" and \"start_year\"."_s}});
}

} // namespace tw::app::mcp
