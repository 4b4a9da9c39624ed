#include "desktop/manuscript/NamedStyles.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>

#include <algorithm>
#include <array>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView settingsKey = "editor/namedStyles"_L1;
constexpr QLatin1StringView fontKey = "font"_L1;
constexpr QLatin1StringView sizeKey = "sizePercent"_L1;
constexpr QLatin1StringView boldKey = "bold"_L1;
constexpr QLatin1StringView italicKey = "italic"_L1;
constexpr QLatin1StringView alignKey = "align"_L1;
constexpr QLatin1StringView leftKey = "left"_L1;
constexpr QLatin1StringView rightKey = "right"_L1;
constexpr QLatin1StringView closeKey = "close"_L1;

constexpr std::array builtInNames{
    QT_TRANSLATE_NOOP("NamedStyle", "Letter"),
    QT_TRANSLATE_NOOP("NamedStyle", "Verse"),
    QT_TRANSLATE_NOOP("NamedStyle", "Epigraph"),
    QT_TRANSLATE_NOOP("NamedStyle", "Message"),
};

NamedStyle styleFrom(const QJsonObject& json)
{
    using Limits = NamedStyleLimits;
    const auto steps = [&json](QLatin1StringView key) {
        return std::clamp(json.value(key).toInt(), 0, Limits::mostSteps);
    };
    return {
        .fontFamily = json.value(fontKey).toString(),
        .sizePercent =
            std::clamp(json.value(sizeKey).toInt(100), Limits::smallestPercent, Limits::largestPercent),
        .isBold = json.value(boldKey).toBool(),
        .isItalic = json.value(italicKey).toBool(),
        .align = json.value(alignKey).toString(),
        .leftSteps = steps(leftKey),
        .rightSteps = steps(rightKey),
        .isClose = json.value(closeKey).toBool(),
    };
}

QJsonObject jsonOf(const NamedStyle& style)
{
    return {
        {fontKey, style.fontFamily},  {sizeKey, style.sizePercent}, {boldKey, style.isBold},
        {italicKey, style.isItalic},  {alignKey, style.align},      {leftKey, style.leftSteps},
        {rightKey, style.rightSteps}, {closeKey, style.isClose},
    };
}

} // namespace

const NamedStyles& builtInNamedStyles()
{
    static const NamedStyles styles{
        {u"Letter"_s, {.isItalic = true, .leftSteps = 1, .rightSteps = 1}},
        {u"Verse"_s, {.leftSteps = 2, .isClose = true}},
        {u"Epigraph"_s, {.sizePercent = 90, .isItalic = true, .align = u"right"_s, .leftSteps = 4}},
        {u"Message"_s, {.sizePercent = 95, .isBold = true, .leftSteps = 1, .rightSteps = 1}},
    };
    return styles;
}

QString namedStyleTitle(const QString& name)
{
    const auto* const found = std::ranges::find_if(
        builtInNames, [&name](const char* known) { return name == QLatin1StringView(known); });
    return found == builtInNames.end() ? name : QCoreApplication::translate("NamedStyle", *found);
}

NamedStyles namedStylesFrom(const QSettings& settings)
{
    NamedStyles styles = builtInNamedStyles();
    const QJsonObject stored =
        QJsonDocument::fromJson(settings.value(settingsKey).toString().toUtf8()).object();
    for (auto entry = stored.begin(); entry != stored.end(); ++entry) {
        if (!entry.key().isEmpty())
            styles.insert_or_assign(entry.key(), styleFrom(entry->toObject()));
    }
    return styles;
}

void storeNamedStyles(QSettings& settings, const NamedStyles& styles)
{
    QJsonObject own;
    for (const auto& [name, style] : styles) {
        const auto builtIn = builtInNamedStyles().find(name);
        if (builtIn == builtInNamedStyles().end() || builtIn->second != style)
            own.insert(name, jsonOf(style));
    }
    if (own.isEmpty())
        settings.remove(settingsKey);
    else
        settings.setValue(settingsKey, QString::fromUtf8(QJsonDocument(own).toJson(QJsonDocument::Compact)));
}

} // namespace tw::desktop::manuscript
