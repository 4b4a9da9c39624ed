#pragma once

#include "desktop/theme/Theme.h"

#include <QString>

namespace tw::desktop::theme {

/** What DeskStyle does not paint: menus, bars, tabs, headers, tips. Belongs on the application. */
[[nodiscard]] QString applicationStyleSheet(const Theme& theme);

/** Replaces the docking system's own sheet entirely; belongs on the dock manager. */
[[nodiscard]] QString dockingStyleSheet(const Theme& theme);

} // namespace tw::desktop::theme
