#pragma once

#include <QString>

#include <map>

class QSettings;

namespace tw::desktop::manuscript {

/** How paragraphs of one named style differ from running text. Own settings of a paragraph or a run win. */
struct NamedStyle
{
    /** Empty: the page's. */
    QString fontFamily = {};
    /** Of the page's font; see NamedStyleLimits. */
    int sizePercent = 100;
    bool isBold = false;
    bool isItalic = false;
    /** As a paragraph's "align": "left", "center", "right", "justify"; empty: as the page. */
    QString align = {};
    /** Room on either side, in steps as indented paragraphs have. */
    int leftSteps = 0;
    int rightSteps = 0;
    /** Paragraphs that follow each other stand close, as the lines of a poem. */
    bool isClose = false;

    friend bool operator==(const NamedStyle&, const NamedStyle&) = default;
};

/** Between what a style may be; what lies outside is brought in. */
struct NamedStyleLimits
{
    static constexpr int smallestPercent = 50;
    static constexpr int largestPercent = 250;
    static constexpr int mostSteps = 8;
};

/** By the name that stands in the text. */
using NamedStyles = std::map<QString, NamedStyle>;

/** Those that every writer has: "Letter", "Verse", "Epigraph", "Message". */
[[nodiscard]] const NamedStyles& builtInNamedStyles();

/** What a name is called on the screen: built-in ones in the user's language, others as they are. */
[[nodiscard]] QString namedStyleTitle(const QString& name);

/** The user's looks ("editor/namedStyles"), and the built-in ones that were left as they came. */
[[nodiscard]] NamedStyles namedStylesFrom(const QSettings& settings);
void storeNamedStyles(QSettings& settings, const NamedStyles& styles);

} // namespace tw::desktop::manuscript
