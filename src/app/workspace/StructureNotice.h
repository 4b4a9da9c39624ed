#pragma once

#include "core/project/Project.h"

#include <QString>

namespace tw::app::workspace {

/** Says how much of a project that was just read hangs on damaged links; empty when nothing does. */
[[nodiscard]] QString structureNotice(const core::project::Project& project);

} // namespace tw::app::workspace
