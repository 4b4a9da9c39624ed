#pragma once

#include "core/calendar/Calendar.h"

namespace tw::core::calendar {

/** A further calendar of the project with an epoch of its own, in which the same instants can be shown. */
struct Reckoning
{
    QString name; ///< May be empty.
    Calendar calendar;
    qint64 epochOffsetMinutes = 0; ///< The instant at which this reckoning's own year 1 begins.

    bool operator==(const Reckoning&) const = default;
};

/** The date text of an instant of the project as this reckoning tells it. */
[[nodiscard]] QString formatInstantIn(const Reckoning& reckoning, StoryInstant instant);

} // namespace tw::core::calendar
