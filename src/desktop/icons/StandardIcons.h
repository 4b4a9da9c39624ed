#pragma once

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::icons {

class IconSet;

/**
 * Gives the toolkit's message boxes and file dialogs the program's own icons, in the theme's colours for what
 * they say; they follow a change of theme. Call it once `themes` is on the application; `icons` must outlive
 * its use.
 */
void registerStandardIcons(const IconSet& icons, theme::ThemeManager& themes);

} // namespace tw::desktop::icons
