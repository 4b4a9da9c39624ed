#include "desktop/theme/Fonts.h"

#include <QFontDatabase>
#include <QList>

#include <algorithm>
#include <array>
#include <span>

namespace tw::desktop::theme {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal smallestInterfacePoints = 10.0;
constexpr qreal pagePoints = 13.0;

// The first of the families that is installed; empty when none is.
QString firstInstalled(std::span<const QLatin1String> families)
{
    const auto found = std::ranges::find_if(
        families, [](QLatin1String family) { return QFontDatabase::hasFamily(QString(family)); });
    return found == families.end() ? QString() : QString(*found);
}

} // namespace

QFont interfaceFont(qreal scale)
{
    static constexpr std::array families{"Inter"_L1, "Noto Sans"_L1, "Cantarell"_L1, "Open Sans"_L1};
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    if (const QString family = firstInstalled(families); !family.isEmpty())
        font.setFamilies({family});
    const qreal points = std::max(font.pointSizeF(), smallestInterfacePoints);
    font.setPointSizeF(points * std::clamp(scale, smallestFontScale, largestFontScale));
    return font;
}

QFont defaultPageFont()
{
    static constexpr std::array families{
        "Noto Serif"_L1,       "Source Serif 4"_L1, "Source Serif Pro"_L1,
        "Libertinus Serif"_L1, "Georgia"_L1,        "DejaVu Serif"_L1,
    };
    QFont font;
    font.setStyleHint(QFont::Serif);
    const QString family = firstInstalled(families);
    font.setFamilies({family.isEmpty() ? u"serif"_s : family});
    font.setPointSizeF(pagePoints);
    return font;
}

} // namespace tw::desktop::theme
