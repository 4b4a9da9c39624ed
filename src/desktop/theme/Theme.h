#pragma once

#include <QColor>
#include <QLatin1String>
#include <QString>

#include <array>
#include <span>

namespace tw::desktop::theme {

/** What a colour is for. Widgets ask for a role, never for a colour of their own. */
enum class Role
{
    Window,       // menus, tool bars, the desk around the page
    Panel,        // trees, lists and forms beside the page
    Page,         // the paper, and fields that are typed into
    Ink,          // text
    QuietInk,     // secondary text: hints, counts, headers
    FaintInk,     // what cannot be used now
    Accent,       // the one colour that says "here"
    AccentInk,    // text on the accent
    Line,         // separators
    Border,       // outlines of controls, which must be seen to be found
    Selection,    // selected rows and text
    SelectionInk, // text on a selection
    Hover,        // under the pointer
    Shade,        // scroll handles
    Warning,
    Error,
    Success,
    Link,
    Insertion, // background of added text in a comparison
    Deletion,  // background of removed text in a comparison
    Thread1,   // plot threads, tags and lanes
    Thread2,
    Thread3,
    Thread4,
    Thread5,
    Thread6,
    Thread7,
    Thread8,
};

inline constexpr std::size_t roleCount = static_cast<std::size_t>(Role::Thread8) + 1;
inline constexpr int threadColorCount = 8;

/** One table of named colours. Plain data; the built-in ones live as long as the program. */
struct Theme
{
    enum class Tone
    {
        Light,
        Dark,
    };

    QLatin1String name; // as stored in the settings
    Tone tone = Tone::Light;
    std::array<QRgb, roleCount> colors{};

    [[nodiscard]] QColor color(Role role) const { return QColor(colors[static_cast<std::size_t>(role)]); }

    /** Colour of the thread at any index, negative ones too: the eight colours repeat. */
    [[nodiscard]] QColor threadColor(int index) const;

    /** The name as the user reads it. */
    [[nodiscard]] QString title() const;

    [[nodiscard]] bool operator==(const Theme&) const = default;
};

/** Light, Dark, Sepia, High contrast, in the order they are offered. */
[[nodiscard]] std::span<const Theme> builtInThemes();

} // namespace tw::desktop::theme
