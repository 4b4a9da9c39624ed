#pragma once

#include "core/foundation/Id.h"

#include <QString>

#include <vector>

namespace tw::app::timeline {

/** One thing in the story's time that cannot be. */
struct ContinuityConflict
{
    /** A finished sentence for the user. */
    QString message;
    /** The events, or the entity, that it is about, in the order in which the sentence names them. */
    std::vector<core::ContentId> ids;

    friend bool operator==(const ContinuityConflict&, const ContinuityConflict&) = default;
};

} // namespace tw::app::timeline
