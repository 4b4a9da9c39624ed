#pragma once

#include "core/calendar/Calendar.h"

#include <QStringView>

#include <optional>

namespace tw::core::calendar {

/**
 * Reads a date as people type it: "1250", "Harvestmoon 1250", "25 Harvestmoon 1250", "Harvestmoon 25, 1250",
 * or what Calendar::formatInstant writes while no named eras are in use. Month names may be shortened while
 * they stay unambiguous. Nothing is guessed: any other text gives no date, and the caller says so.
 */
[[nodiscard]] std::optional<DateParts> parseDate(const Calendar& calendar, QStringView text);

} // namespace tw::core::calendar
