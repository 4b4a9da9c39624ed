#include "desktop/theme/Theme.h"

#include <QCoreApplication>

namespace tw::desktop::theme {

using namespace Qt::Literals::StringLiterals;

namespace {

// The rows stand in the order of Role: surfaces, inks, accent, lines, selection, meanings, threads.
constexpr Theme light{
    "Light"_L1,
    Theme::Tone::Light,
    {
        0xfff1efeb, 0xfff8f7f4, 0xfffffefc, 0xff24221f, 0xff625d57, 0xffa29c94, 0xff1d6a70,
        0xffffffff, 0xffdfdbd4, 0xffb9b3aa, 0xffcfe3e3, 0xff13373a, 0xffe8e5df, 0xffc4beb5,
        0xff855200, 0xffb3261e, 0xff2d6a35, 0xff1b6076, 0xffd9edd9, 0xfff6d9d6, 0xffb0443a,
        0xff9a5d0c, 0xff726510, 0xff3a7535, 0xff1b7272, 0xff2c62a0, 0xff68499f, 0xffa03c78,
    },
};

constexpr Theme dark{
    "Dark"_L1,
    Theme::Tone::Dark,
    {
        0xff18191b, 0xff1f2023, 0xff26272b, 0xffe3e0da, 0xffa6a29b, 0xff6c6a66, 0xff6dbabf,
        0xff0c2426, 0xff34363b, 0xff55585f, 0xff2b4a4d, 0xffecf7f7, 0xff2b2d31, 0xff4b4e54,
        0xffe2b25e, 0xfff2948d, 0xff8dca92, 0xff80c2dd, 0xff24402a, 0xff51302e, 0xffe98a80,
        0xffe0a458, 0xffc9bb5c, 0xff86c27f, 0xff67c0be, 0xff82b3ea, 0xffb39be6, 0xffe48fc1,
    },
};

constexpr Theme sepia{
    "Sepia"_L1,
    Theme::Tone::Light,
    {
        0xffe8dcc5, 0xfff0e6d2, 0xfff8f1e1, 0xff392d20, 0xff655540, 0xffa08f76, 0xff86472a,
        0xfffff9ee, 0xffd4c6a9, 0xffb09d7c, 0xffe2c9a0, 0xff392716, 0xffe4d7bd, 0xffbfac8a,
        0xff744800, 0xff99291f, 0xff3c5c28, 0xff6b4610, 0xffdde3bd, 0xfff0cdb8, 0xff9c3b2c,
        0xff85500a, 0xff67590d, 0xff40662a, 0xff256660, 0xff34588a, 0xff634688, 0xff8c3865,
    },
};

constexpr Theme highContrast{
    "HighContrast"_L1,
    Theme::Tone::Dark,
    {
        0xff000000, 0xff000000, 0xff000000, 0xffffffff, 0xffe6e6e6, 0xffa6a6a6, 0xffffd60a,
        0xff000000, 0xff8c8c8c, 0xffffffff, 0xff0052cc, 0xffffffff, 0xff383838, 0xffbfbfbf,
        0xffffb84d, 0xffff8f87, 0xff7dff8c, 0xff8ad8ff, 0xff003d0d, 0xff570008, 0xffff8a7a,
        0xffffb54d, 0xfffff06b, 0xff8cff82, 0xff6bfff6, 0xff94c6ff, 0xffcdb5ff, 0xffff9ed8,
    },
};

constexpr std::array themes{light, dark, sepia, highContrast};

} // namespace

QColor Theme::threadColor(int index) const
{
    const int wrapped = ((index % threadColorCount) + threadColorCount) % threadColorCount;
    return color(static_cast<Role>(static_cast<int>(Role::Thread1) + wrapped));
}

QString Theme::title() const
{
    if (name == dark.name)
        return QCoreApplication::translate("Theme", "Dark");
    if (name == sepia.name)
        return QCoreApplication::translate("Theme", "Sepia");
    if (name == highContrast.name)
        return QCoreApplication::translate("Theme", "High contrast");
    return QCoreApplication::translate("Theme", "Light");
}

std::span<const Theme> builtInThemes()
{
    return themes;
}

} // namespace tw::desktop::theme
