#include "core/calendar/CalendarRules.h"

#include <QCoreApplication>

#include <algorithm>

namespace tw::core::calendar {

namespace {

Failure failure(const char* message)
{
    return {QCoreApplication::translate("CalendarRules", message)};
}

bool isNameless(const QString& name)
{
    return name.trimmed().isEmpty();
}

bool isWholeNumber(const QString& text)
{
    bool isNumber = false;
    text.toLongLong(&isNumber, 10);
    return isNumber;
}

} // namespace

Result<void> checkCalendarDraft(const CalendarDraft& draft)
{
    const auto isTooShort = [](qint32 days) { return days < 1; };
    const auto isNotWhole = [](const QString& text) { return !isWholeNumber(text); };
    if (draft.months.isEmpty())
        return failure(QT_TRANSLATE_NOOP("CalendarRules", "A calendar needs at least one month."));
    if (std::ranges::any_of(draft.months, isNameless, &CalendarMonth::name))
        return failure(QT_TRANSLATE_NOOP("CalendarRules", "Every month needs a name."));
    if (std::ranges::any_of(draft.months, isTooShort, &CalendarMonth::days))
        return failure(QT_TRANSLATE_NOOP("CalendarRules", "Every month needs a length of at least one day."));
    if (draft.weekdays.isEmpty())
        return failure(QT_TRANSLATE_NOOP("CalendarRules", "A calendar needs at least one weekday."));
    if (std::ranges::any_of(draft.eras, isNameless, &CalendarDraft::Era::name))
        return failure(QT_TRANSLATE_NOOP("CalendarRules", "Every era needs a name."));
    if (std::ranges::any_of(draft.eras, isNotWhole, &CalendarDraft::Era::startYear))
        return failure(QT_TRANSLATE_NOOP("CalendarRules", "Every era needs a whole-number start year."));
    return {};
}

Calendar calendarFromDraft(const CalendarDraft& draft)
{
    QList<CalendarEra> eras;
    eras.reserve(draft.eras.size());
    for (const CalendarDraft::Era& era : draft.eras)
        eras.append({era.name, era.startYear.toLongLong(), era.countsDown});

    Calendar calendar;
    calendar.setMonths(draft.months);
    calendar.setWeekdays(draft.weekdays);
    calendar.setEraName(draft.eraName);
    calendar.setEras(std::move(eras));
    return calendar;
}

} // namespace tw::core::calendar
