#pragma once

#include <QFont>

namespace tw::desktop::theme {

inline constexpr qreal smallestFontScale = 0.75;
inline constexpr qreal largestFontScale = 2.0;

/** The font of menus, panels and dialogs, `scale` times the system's size. */
[[nodiscard]] QFont interfaceFont(qreal scale);

/** The serif a page is set in until the user chooses another one, at 13 points. */
[[nodiscard]] QFont defaultPageFont();

} // namespace tw::desktop::theme
