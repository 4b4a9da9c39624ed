// The rules of story time said literally, every pair compared: what the validator must agree with.
#pragma once

#include "app/timeline/ContinuityConflict.h"
#include "core/project/Project.h"

#include <vector>

namespace tw::test {

/** Where maps that are excluded from AI are hidden, and nothing else is. */
[[nodiscard]] std::vector<app::timeline::ContinuityConflict> literalTimelineCheck(
    const core::project::Project& project);

} // namespace tw::test
