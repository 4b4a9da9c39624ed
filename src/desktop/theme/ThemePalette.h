#pragma once

#include "desktop/theme/Theme.h"

#include <QPalette>

namespace tw::desktop::theme {

/** The theme's colours as Qt's standard roles, for every widget that has no rule of its own. */
[[nodiscard]] QPalette makePalette(const Theme& theme);

} // namespace tw::desktop::theme
