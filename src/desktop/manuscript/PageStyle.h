#pragma once

#include "desktop/manuscript/NamedStyles.h"

#include <QString>

class QFont;
class QSettings;

namespace tw::desktop::manuscript {

/** How the page is set. */
struct PageStyle
{
    QString fontFamily;
    qreal fontPointSize = 13;
    /** 1.0 is the font's own size; apart from the font, as a magnifying glass. */
    qreal zoom = 1.0;
    /** Width of the column, in characters of running text. */
    int columnCharacters = 66;
    /** Whether the text stands on a page of that width; it fills the window otherwise. */
    bool isPageView = true;
    /** Of the font's size. */
    qreal lineHeight = 1.5;
    /** Paragraphs begin with an indented line rather than after a gap, as in a printed novel. */
    bool hasFirstLineIndents = false;
    NamedStyles namedStyles = {};

    friend bool operator==(const PageStyle&, const PageStyle&) = default;
};

/** Between what a style may be; what lies outside is brought in. */
struct PageLimits
{
    static constexpr qreal smallestFont = 6;
    static constexpr qreal largestFont = 72;
    static constexpr int narrowest = 30;
    static constexpr int widest = 120;
    static constexpr qreal tightest = 1.0;
    static constexpr qreal loosest = 3.0;
};

/**
 * How the user wants pages set: "editor/fontFamily", "editor/fontSize", "editor/pageWidth",
 * "editor/lineHeight", "editor/firstLineIndents", "editor/zoom", "editor/pageView", and the named styles.
 */
[[nodiscard]] PageStyle pageStyleFrom(const QSettings& settings);
/** Keeps all of it but the zoom and the page view, which have their own commands, and the named styles. */
void storePageStyle(QSettings& settings, const PageStyle& style);
/** Back to how pages came. */
void forgetPageStyle(QSettings& settings);
/** Shows texts as pages, or over the whole window. */
void setPageView(QSettings& settings, bool isPageView);
/** Makes pages larger or smaller by so many steps, within sensible limits; none changes nothing. */
void stepPageZoom(QSettings& settings, int steps);

/** The font of running text in this style, zoom included. */
[[nodiscard]] QFont pageFont(const PageStyle& style);

} // namespace tw::desktop::manuscript
