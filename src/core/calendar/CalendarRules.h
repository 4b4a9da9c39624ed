#pragma once

#include "core/calendar/Calendar.h"
#include "core/foundation/Result.h"

namespace tw::core::calendar {

/** A calendar as it stands in an editor's tables, before anybody knows whether it makes sense. */
struct CalendarDraft
{
    struct Era
    {
        QString name;
        QString startYear; ///< As typed.
        bool countsDown = false;
    };

    QList<CalendarMonth> months;
    QStringList weekdays;
    QString eraName;
    QList<Era> eras;
};

/** What a person has to put right before the calendar can be stored; the first thing only. */
[[nodiscard]] Result<void> checkCalendarDraft(const CalendarDraft& draft);

/** The calendar that a draft describes. Start years that are no numbers, which the check refuses, give 0. */
[[nodiscard]] Calendar calendarFromDraft(const CalendarDraft& draft);

} // namespace tw::core::calendar
