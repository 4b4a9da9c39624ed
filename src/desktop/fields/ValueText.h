#pragma once

#include "core/calendar/Calendar.h"
#include "core/foundation/Id.h"
#include "core/taxonomy/Field.h"

#include <optional>

namespace tw::core::project {
class Project;
}

namespace tw::desktop::fields {

/** The instant that the value of a date field holds; none when it is other text. */
[[nodiscard]] std::optional<core::calendar::StoryInstant> instantFromValue(const QString& value);

/** The lines of a reference value that hold anything. */
[[nodiscard]] QStringList referenceLines(const QString& value);

/** A value as a reader sees it: names for references, the calendar's text for dates, yes and no. */
[[nodiscard]] QString valueText(
    const core::project::Project& project, const core::taxonomy::Field& field, const QString& value);

} // namespace tw::desktop::fields
