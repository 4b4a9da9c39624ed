#include "desktop/theme/ThemeManager.h"

#include "desktop/theme/DeskStyle.h"
#include "desktop/theme/Fonts.h"
#include "desktop/theme/StyleSheets.h"
#include "desktop/theme/SystemColorScheme.h"
#include "desktop/theme/ThemePalette.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>

#include <algorithm>

namespace tw::desktop::theme {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1String themeKey = "appearance/theme"_L1;
constexpr QLatin1String fontScaleKey = "a11y/uiFontScale"_L1;
constexpr QLatin1String motionKey = "a11y/reduceMotion"_L1;

Theme::Tone toneOf(const QPalette& palette)
{
    const bool isDark =
        palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
    return isDark ? Theme::Tone::Dark : Theme::Tone::Light;
}

const Theme& themeNamed(QStringView name)
{
    const auto themes = builtInThemes();
    const auto found = std::ranges::find_if(
        themes, [name](const Theme& theme) { return name.compare(theme.name, Qt::CaseInsensitive) == 0; });
    return found == themes.end() ? themes.front() : *found;
}

qreal validScale(const QVariant& value)
{
    bool isNumber = false;
    const qreal scale = value.toReal(&isNumber);
    return isNumber && qIsFinite(scale) ? std::clamp(scale, smallestFontScale, largestFontScale) : 1.0;
}

} // namespace

ThemeManager::ThemeManager(QSettings& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_startTone(toneOf(QGuiApplication::palette()))
    , m_choice(settings.value(themeKey, QString(builtInThemes().front().name)).toString())
    , m_fontScale(validScale(settings.value(fontScaleKey, 1.0)))
    , m_isMotionReduced(settings.value(motionKey).toString() == u"true")
    , m_cursorFlashTime(QApplication::cursorFlashTime())
{
    refresh();
}

ThemeManager::~ThemeManager() = default;

void ThemeManager::setChoice(const QString& choice)
{
    if (choice == m_choice)
        return;
    m_choice = choice;
    m_settings.setValue(themeKey, choice);
    update();
}

void ThemeManager::setFontScale(qreal scale)
{
    const qreal valid = validScale(scale);
    if (qFuzzyCompare(valid, m_fontScale))
        return;
    m_fontScale = valid;
    m_settings.setValue(fontScaleKey, valid);
    update();
}

void ThemeManager::setMotionReduced(bool isReduced)
{
    if (isReduced == m_isMotionReduced)
        return;
    m_isMotionReduced = isReduced;
    m_settings.setValue(motionKey, isReduced ? u"true"_s : u"false"_s);
    update();
}

void ThemeManager::apply(QApplication& application)
{
    m_application = &application;
    if (!m_style) {
        m_style = new DeskStyle;
        QApplication::setStyle(m_style);
    }
    m_style->setTheme(m_theme);
    QApplication::setPalette(makePalette(m_theme));
    QApplication::setFont(interfaceFont(m_fontScale));
    QApplication::setCursorFlashTime(m_isMotionReduced ? 0 : m_cursorFlashTime);
    // Last: setting it also makes every widget take up the style's new colours.
    application.setStyleSheet(applicationStyleSheet(m_theme));
}

void ThemeManager::setStandardIcon(QStyle::StandardPixmap place, const QIcon& icon)
{
    if (m_style)
        m_style->setStandardIcon(place, icon);
}

// Reads the choice anew into the theme in use.
void ThemeManager::refresh()
{
    if (m_choice.compare(systemChoice, Qt::CaseInsensitive) != 0) {
        m_theme = themeNamed(m_choice);
        return;
    }
    if (m_systemScheme == nullptr) {
        m_systemScheme = new SystemColorScheme(m_startTone, this);
        connect(m_systemScheme, &SystemColorScheme::toneChanged, this, &ThemeManager::update);
    }
    const bool isDark = m_systemScheme->tone() == Theme::Tone::Dark;
    m_theme = themeNamed(isDark ? u"Dark" : u"Light");
}

void ThemeManager::update()
{
    refresh();
    if (m_application)
        apply(*m_application);
    emit themeChanged();
}

} // namespace tw::desktop::theme
