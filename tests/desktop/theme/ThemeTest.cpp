#include "desktop/theme/Theme.h"

#include "desktop/theme/StyleSheets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

namespace tw::desktop::theme {
namespace {

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

// Contrast ratio as accessibility guidelines define it, from 1 to 21.
double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

struct Pairing
{
    std::vector<Role> inks;
    std::vector<Role> grounds;
    double atLeast;
};

TEST(Theme, contrastKeepsTextReadableInEveryTheme)
{
    const std::vector<Role> surfaces{Role::Window, Role::Panel, Role::Page};
    const std::vector<Pairing> pairings{
        {{Role::Ink, Role::QuietInk}, surfaces, 4.5},
        {{Role::Ink}, {Role::Hover, Role::Insertion, Role::Deletion}, 4.5},
        {{Role::Link, Role::Warning, Role::Error, Role::Success, Role::Accent}, surfaces, 4.5},
        {{Role::AccentInk}, {Role::Accent}, 4.5},
        {{Role::SelectionInk, Role::Ink}, {Role::Selection}, 4.5},
        {{Role::Thread1, Role::Thread2, Role::Thread3, Role::Thread4, Role::Thread5, Role::Thread6,
          Role::Thread7, Role::Thread8},
         {Role::Panel, Role::Page},
         4.5},
    };
    for (const Theme& theme : builtInThemes()) {
        for (const Pairing& pairing : pairings) {
            for (const Role ink : pairing.inks) {
                for (const Role ground : pairing.grounds) {
                    EXPECT_GE(contrast(theme.color(ink), theme.color(ground)), pairing.atLeast)
                        << theme.name.data() << ": role " << static_cast<int>(ink) << " on role "
                        << static_cast<int>(ground);
                }
            }
        }
    }
}

TEST(Theme, everyThemeDefinesEveryColor)
{
    for (const Theme& theme : builtInThemes()) {
        for (std::size_t role = 0; role < roleCount; ++role)
            EXPECT_EQ(qAlpha(theme.colors[role]), 255) << theme.name.data() << ": role " << role;
        std::set<QRgb> threads;
        for (int index = 0; index < threadColorCount; ++index)
            threads.insert(theme.threadColor(index).rgb());
        EXPECT_EQ(threads.size(), std::size_t{threadColorCount}) << theme.name.data();
    }
}

TEST(Theme, toneTellsWhetherInkIsDarkerThanThePage)
{
    for (const Theme& theme : builtInThemes()) {
        const bool isDark = luminance(theme.color(Role::Page)) < luminance(theme.color(Role::Ink));
        EXPECT_EQ(theme.tone == Theme::Tone::Dark, isDark) << theme.name.data();
    }
}

TEST(Theme, threadColorsRepeatForAnyIndex)
{
    const Theme& theme = builtInThemes().front();
    EXPECT_EQ(theme.threadColor(0), theme.color(Role::Thread1));
    EXPECT_EQ(theme.threadColor(threadColorCount), theme.color(Role::Thread1));
    EXPECT_EQ(theme.threadColor(-1), theme.color(Role::Thread8));
}

TEST(StyleSheets, noTokenStaysUnfilled)
{
    for (const Theme& theme : builtInThemes()) {
        for (const QString& sheet : {applicationStyleSheet(theme), dockingStyleSheet(theme)}) {
            EXPECT_FALSE(sheet.contains(QLatin1Char('@')));
            EXPECT_TRUE(sheet.contains(theme.color(Role::Accent).name()));
        }
    }
}

} // namespace
} // namespace tw::desktop::theme
