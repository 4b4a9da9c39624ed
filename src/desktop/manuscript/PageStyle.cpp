#include "desktop/manuscript/PageStyle.h"

#include "desktop/theme/Fonts.h"

#include <QFont>
#include <QSettings>

#include <algorithm>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView familyKey = "editor/fontFamily"_L1;
constexpr QLatin1StringView sizeKey = "editor/fontSize"_L1;
constexpr QLatin1StringView widthKey = "editor/pageWidth"_L1;
constexpr QLatin1StringView lineHeightKey = "editor/lineHeight"_L1;
constexpr QLatin1StringView indentsKey = "editor/firstLineIndents"_L1;
constexpr QLatin1StringView pageViewKey = "editor/pageView"_L1;
constexpr qreal smallestZoom = 0.5;
constexpr qreal largestZoom = 3.0;
constexpr qreal zoomStep = 0.1;

} // namespace

PageStyle pageStyleFrom(const QSettings& settings)
{
    PageStyle style;
    style.fontFamily = settings.value(familyKey, theme::defaultPageFont().family()).toString();
    style.fontPointSize = std::clamp(
        settings.value(sizeKey, style.fontPointSize).toReal(), PageLimits::smallestFont,
        PageLimits::largestFont);
    style.columnCharacters = std::clamp(
        settings.value(widthKey, style.columnCharacters).toInt(), PageLimits::narrowest, PageLimits::widest);
    style.lineHeight = std::clamp(
        settings.value(lineHeightKey, style.lineHeight).toReal(), PageLimits::tightest, PageLimits::loosest);
    style.hasFirstLineIndents = settings.value(indentsKey, style.hasFirstLineIndents).toBool();
    style.isPageView = settings.value(pageViewKey, style.isPageView).toBool();
    style.namedStyles = namedStylesFrom(settings);
    style.zoom = std::clamp(settings.value("editor/zoom", style.zoom).toReal(), smallestZoom, largestZoom);
    return style;
}

void storePageStyle(QSettings& settings, const PageStyle& style)
{
    settings.setValue(familyKey, style.fontFamily);
    settings.setValue(sizeKey, style.fontPointSize);
    settings.setValue(widthKey, style.columnCharacters);
    settings.setValue(lineHeightKey, style.lineHeight);
    settings.setValue(indentsKey, style.hasFirstLineIndents);
}

void forgetPageStyle(QSettings& settings)
{
    for (const QLatin1StringView key : {familyKey, sizeKey, widthKey, lineHeightKey, indentsKey})
        settings.remove(key);
}

void setPageView(QSettings& settings, bool isPageView)
{
    settings.setValue(pageViewKey, isPageView);
}

void stepPageZoom(QSettings& settings, int steps)
{
    if (steps == 0)
        return;
    const qreal zoom = pageStyleFrom(settings).zoom + steps * zoomStep;
    settings.setValue("editor/zoom", std::clamp(zoom, smallestZoom, largestZoom));
}

QFont pageFont(const PageStyle& style)
{
    QFont font(style.fontFamily);
    font.setPointSizeF(style.fontPointSize * style.zoom);
    font.setStyleStrategy(QFont::PreferQuality);
    return font;
}

} // namespace tw::desktop::manuscript
