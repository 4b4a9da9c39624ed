#include "core/calendar/Reckoning.h"

#include <limits>

namespace tw::core::calendar {

QString formatInstantIn(const Reckoning& reckoning, StoryInstant instant)
{
    qint64 sinceEpoch = 0;
    if (__builtin_sub_overflow(instant, reckoning.epochOffsetMinutes, &sinceEpoch)) {
        using Limits = std::numeric_limits<qint64>;
        sinceEpoch = instant < 0 ? Limits::min() : Limits::max();
    }
    return reckoning.calendar.formatInstant(sinceEpoch);
}

} // namespace tw::core::calendar
