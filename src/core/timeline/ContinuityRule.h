#pragma once

#include "core/calendar/Calendar.h"
#include "core/foundation/Id.h"

#include <QString>

#include <optional>

namespace tw::core::timeline {

/** A statement about one entity that the story must keep. */
struct ContinuityRule
{
    QString name;
    ContentId entityId;
    QString fieldKey;
    /** The comparison's name in the file format; text without a meaning survives and never holds. */
    QString comparison = QStringLiteral("equals");
    QString value;
    /** The moment at which the field is read; none for its current value. */
    std::optional<calendar::StoryInstant> instant;

    friend bool operator==(const ContinuityRule&, const ContinuityRule&) = default;
};

} // namespace tw::core::timeline
