#include "app/mcp/ToolFamilies.h"
#include "app/mcp/calendar/CalendarTools.h"
#include "app/mcp/registry/Schema.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

namespace {

QJsonObject updateSchema()
{
    return makeObjectSchema({
        {u"months"_s, listProperty(
                          u"Replaces all months, in the order of the year."_s,
                          recordProperty(
                              u"A month."_s,
                              {{u"name"_s, textProperty(u"The month's name."_s)},
                               {u"days"_s, integerProperty(u"Its length, at least one day."_s)}},
                              {u"name"_s, u"days"_s}))},
        {u"weekdays"_s, listProperty(
                            u"Replaces the weekday cycle; the first is the weekday of day 1 of year 1."_s,
                            textProperty(u"A weekday's name."_s))},
        {u"era_name"_s,
         textProperty(u"The label after every year while there are no named eras; null clears it."_s)},
        {u"eras"_s,
         listProperty(
             u"Replaces all named eras; an empty list removes them."_s,
             recordProperty(
                 u"A named era."_s,
                 {{u"name"_s, textProperty(u"The label written after the era's years."_s)},
                  {u"start_year"_s,
                   integerProperty(u"The absolute year in which it begins; year 1 is the epoch."_s)},
                  {u"counts_down"_s,
                   booleanProperty(u"Counts backward toward the start of the next era."_s)}},
                 {u"name"_s, u"start_year"_s}))},
    });
}

} // namespace

ToolTable calendarTools()
{
    return {
        {
            .access = ToolAccess::ReadOnly,
            .title = u"Read the calendar"_s,
            .hints = {.isIdempotent = true},
            .spec =
                {u"get_calendar"_s,
                 u"Reads the project's calendar: its months (with lengths), weekday names, era label, and "
                 u"any "
                 "named eras (a multi-reckoning epoch like Before/After Fall) -- the reckoning every "
                 "timeline "
                 "date is written in. Takes no arguments. Call it before you write any date: the answer ends "
                 "with how dates of this calendar are written. The coloured bands behind the timeline are "
                 "something else; get_timeline lists those."_s,
                 makeObjectSchema({})},
            .handler = getCalendar,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Update the calendar"_s,
            .hints = {.isDestructive = true, .isIdempotent = true},
            .spec =
                {u"update_calendar"_s,
                 u"Updates the project calendar. Give at least one of \"months\", \"weekdays\", "
                 u"\"era_name\", or "
                 "\"eras\"; what you leave out stays. Each list replaces the whole list, so call "
                 "get_calendar "
                 "first and pass everything you want to keep. No stored date is rewritten: events keep their "
                 "moment and read differently in the new calendar. Refused are a calendar without months or "
                 "weekdays, months without a name or shorter than a day, and eras without a name. There is "
                 "no "
                 "leap rule."_s,
                 updateSchema()},
            .handler = updateCalendar,
        },
    };
}

void registerCalendarTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog)
{
    registerTools(server, workspace, changeLog, calendarTools());
}

} // namespace tw::app::mcp
