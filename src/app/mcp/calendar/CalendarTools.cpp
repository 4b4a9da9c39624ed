#include "app/mcp/calendar/CalendarTools.h"

#include "app/mcp/registry/UndoStep.h"
#include "app/workspace/Workspace.h"
#include "core/calendar/CalendarCommands.h"
#include "core/calendar/CalendarRules.h"

#include <algorithm>
#include <limits>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::calendar::Calendar;
using core::calendar::CalendarDraft;
using core::calendar::CalendarEra;
using core::calendar::CalendarMonth;
using core::calendar::Reckoning;

namespace {

QString shownName(const QString& name, const QString& without)
{
    return name.isEmpty() ? without : name;
}

QStringList monthLines(const Calendar& calendar)
{
    QStringList lines{u"Months (%1 days a year):"_s.arg(calendar.yearLength())};
    int number = 0;
    for (const CalendarMonth& month : calendar.months())
        lines += u"%1. %2: %3 days"_s.arg(
            QString::number(++number), shownName(month.name, u"(unnamed)"_s), QString::number(month.days));
    return lines;
}

QStringList eraLines(const Calendar& calendar)
{
    if (calendar.eras().isEmpty())
        return {u"Named eras: none. Years carry the era label: %1"_s.arg(
            shownName(calendar.eraName(), u"(none)"_s))};
    QStringList lines{
        u"Era label (not used while named eras exist): %1"_s.arg(shownName(calendar.eraName(), u"(none)"_s)),
        u"Named eras:"_s};
    for (const CalendarEra& era : calendar.eras()) {
        const QString direction = era.countsDown ? u", counts down"_s : QString();
        lines += u"- %1: from year %2%3"_s.arg(
            shownName(era.name, u"(unnamed)"_s), QString::number(era.startYear), direction);
    }
    return lines;
}

QStringList reckoningLines(const std::vector<Reckoning>& reckonings)
{
    QStringList lines;
    for (const Reckoning& reckoning : reckonings)
        lines += u"- %1"_s.arg(shownName(reckoning.name, u"(unnamed reckoning)"_s));
    if (!lines.isEmpty())
        lines.prepend(u"Further reckonings, set up in the desktop app:"_s);
    return lines;
}

/** A date that reads back whatever the names of months: by the middle of the first one, else by the year. */
QString howToWriteDates(const Calendar& calendar)
{
    const QString month = calendar.months().isEmpty() ? QString() : calendar.months().constFirst().name;
    if (month.isEmpty())
        return u"Write dates as a year, e.g. \"1250\"."_s;
    return u"Write dates like \"1250\", \"%1 1250\", or \"1 %1 1250, 14:05\". Years are absolute: year 1 is "
           u"the "
           "epoch, also where named eras count anew."_s.arg(month);
}

Result<CalendarMonth> readMonth(const ToolArguments& month)
{
    constexpr qint64 mostDays = std::numeric_limits<qint32>::max();
    const QString name = month.text(u"name").trimmed();
    const qint64 days = std::max<qint64>(month.integer(u"days").value_or(0), 0);
    if (days > mostDays) {
        return Failure{u"%1 days are too many for the month '%2'; it can have %3 at most."_s.arg(
            QString::number(days), name, QString::number(mostDays))};
    }
    return CalendarMonth{name, static_cast<qint32>(days)};
}

/** The calendar with what the arguments give in place of its parts, and the names of these parts. */
struct CalendarUpdate
{
    CalendarDraft draft;
    QStringList parts;
};

Result<CalendarUpdate> updateFrom(const Calendar& calendar, const ToolArguments& arguments)
{
    CalendarUpdate update{{calendar.months(), calendar.weekdays(), calendar.eraName(), {}}, {}};
    for (const CalendarEra& era : calendar.eras())
        update.draft.eras.push_back({era.name, QString::number(era.startYear), era.countsDown});

    if (arguments.has(u"months")) {
        update.parts += u"months"_s;
        update.draft.months.clear();
        for (const ToolArguments& record : arguments.records(u"months")) {
            auto month = readMonth(record);
            if (!month)
                return Failure{month.message()};
            update.draft.months.push_back(std::move(month).value());
        }
    }
    if (const auto weekdays = arguments.givenTextList(u"weekdays")) {
        update.parts += u"weekdays"_s;
        update.draft.weekdays = *weekdays;
    }
    if (const auto eraName = arguments.givenText(u"era_name")) {
        update.parts += u"era label"_s;
        update.draft.eraName = eraName->trimmed();
    }
    if (arguments.has(u"eras")) {
        update.parts += u"eras"_s;
        update.draft.eras.clear();
        for (const ToolArguments& era : arguments.records(u"eras"))
            update.draft.eras.push_back(
                {era.text(u"name").trimmed(), era.text(u"start_year"), era.boolean(u"counts_down")});
    }
    return update;
}

} // namespace

McpToolResult getCalendar(ToolContext& context, const ToolArguments& /*arguments*/)
{
    const core::project::Project& project = context.workspace.project();
    const Calendar& calendar = project.calendar();
    QStringList lines = monthLines(calendar);
    lines += u"Weekdays: %1. The first is the weekday of day 1 of year 1."_s.arg(
        shownName(calendar.weekdays().join(u", "_s), u"(none)"_s));
    lines += eraLines(calendar);
    lines += reckoningLines(project.reckonings());
    lines += howToWriteDates(calendar);
    return McpToolResult::success(lines.join(u'\n'));
}

McpToolResult updateCalendar(ToolContext& context, const ToolArguments& arguments)
{
    core::project::Project& project = context.workspace.projectForEdit();
    const auto read = updateFrom(project.calendar(), arguments);
    if (!read)
        return McpToolResult::failure(read.message());
    const CalendarUpdate& update = read.value();
    if (update.parts.isEmpty())
        return McpToolResult::failure(
            u"Provide at least one of \"months\", \"weekdays\", \"era_name\", or \"eras\"."_s);
    if (const auto checked = checkCalendarDraft(update.draft); !checked)
        return McpToolResult::failure(checked.message());
    const Calendar calendar = calendarFromDraft(update.draft);
    if (calendar == project.calendar())
        return McpToolResult::success(u"The calendar already matches; nothing changed."_s);
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: update calendar"_s, [&] {
        context.workspace.undoStack().push(
            std::make_unique<core::calendar::SetCalendarCommand>(project, calendar));
        return McpToolResult::success(
            u"Updated the calendar (%1). Stored instants are unchanged and now read in the new calendar."_s
                .arg(update.parts.join(u", "_s)));
    });
}

} // namespace tw::app::mcp
