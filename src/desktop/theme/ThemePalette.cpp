#include "desktop/theme/ThemePalette.h"

namespace tw::desktop::theme {

QPalette makePalette(const Theme& theme)
{
    QPalette palette(theme.color(Role::Panel), theme.color(Role::Window));
    palette.setColor(QPalette::Window, theme.color(Role::Window));
    palette.setColor(QPalette::WindowText, theme.color(Role::Ink));
    palette.setColor(QPalette::Base, theme.color(Role::Page));
    palette.setColor(QPalette::AlternateBase, theme.color(Role::Panel));
    palette.setColor(QPalette::Text, theme.color(Role::Ink));
    palette.setColor(QPalette::PlaceholderText, theme.color(Role::QuietInk));
    palette.setColor(QPalette::Button, theme.color(Role::Panel));
    palette.setColor(QPalette::ButtonText, theme.color(Role::Ink));
    palette.setColor(QPalette::BrightText, theme.color(Role::Error));
    palette.setColor(QPalette::Highlight, theme.color(Role::Selection));
    palette.setColor(QPalette::HighlightedText, theme.color(Role::SelectionInk));
    palette.setColor(QPalette::ToolTipBase, theme.color(Role::Page));
    palette.setColor(QPalette::ToolTipText, theme.color(Role::Ink));
    palette.setColor(QPalette::Link, theme.color(Role::Link));
    palette.setColor(QPalette::LinkVisited, theme.color(Role::Link));
    palette.setColor(QPalette::Light, theme.color(Role::Page));
    palette.setColor(QPalette::Midlight, theme.color(Role::Hover));
    palette.setColor(QPalette::Mid, theme.color(Role::Line));
    palette.setColor(QPalette::Dark, theme.color(Role::Border));
    palette.setColor(QPalette::Shadow, theme.color(Role::Border));

    const QColor faint = theme.color(Role::FaintInk);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText,
          QPalette::HighlightedText, QPalette::Link}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, theme.color(Role::Hover));
    palette.setColor(QPalette::Disabled, QPalette::Base, theme.color(Role::Panel));
    return palette;
}

} // namespace tw::desktop::theme
