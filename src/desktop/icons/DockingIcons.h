#pragma once

namespace tw::desktop::icons {

class IconSet;

/** Gives the docking system's buttons our icons. Call it before the first dock widget is made. */
void registerDockingIcons(const IconSet& icons);

} // namespace tw::desktop::icons
