#pragma once

#include "core/calendar/Calendar.h"

#include <QString>

#include <optional>

namespace tw::app::codex {

/**
 * An instant in words that readDateText() turns into the same instant again. With named eras the calendar's
 * own text cannot be read back, so " [year N]" with the absolute year follows it.
 */
[[nodiscard]] QString dateText(
    const core::calendar::Calendar& calendar, core::calendar::StoryInstant instant);

/** Reads what dateText() writes, and dates as people type them; none for anything else. */
[[nodiscard]] std::optional<core::calendar::StoryInstant> readDateText(
    const core::calendar::Calendar& calendar, const QString& text);

} // namespace tw::app::codex
