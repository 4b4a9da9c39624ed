#pragma once

#include "desktop/theme/Theme.h"

#include <QObject>
#include <QPointer>
#include <QStyle>

class QApplication;
class QIcon;
class QSettings;

namespace tw::desktop::theme {

class DeskStyle;
class SystemColorScheme;

/**
 * Knows the theme in use and puts it on the application. Owned by main and passed by reference; outlives
 * every widget that listens to it. Main thread only.
 *
 * The choice is kept under "appearance/theme" (a theme's name, or "System"), the size of the interface's text
 * under "a11y/uiFontScale". An unknown name reads as Light and is not overwritten.
 */
class ThemeManager final : public QObject
{
    Q_OBJECT

public:
    /** Create it before a palette is set on the application. `settings` must outlive it. */
    explicit ThemeManager(QSettings& settings, QObject* parent = nullptr);
    ~ThemeManager() override;

    /** Name of the choice that follows the desktop: Light or Dark as it is set there. */
    static constexpr QLatin1String systemChoice{"System"};

    /** The theme in use. The reference stays valid; after themeChanged() it holds other colours. */
    [[nodiscard]] const Theme& theme() const { return m_theme; }

    /** A theme's name or `systemChoice`. */
    [[nodiscard]] QString choice() const { return m_choice; }
    void setChoice(const QString& choice);

    /** 1.0 is the system's own size; from 0.75 to 2. */
    [[nodiscard]] qreal fontScale() const { return m_fontScale; }
    void setFontScale(qreal scale);

    /** Whether nothing is to move by itself: "a11y/reduceMotion". Nothing but the text cursor does. */
    [[nodiscard]] bool isMotionReduced() const { return m_isMotionReduced; }
    void setMotionReduced(bool isReduced);

    /** Sets style, palette, font and style sheet now and again whenever the theme or the scale changes. */
    void apply(QApplication& application);

    /** Shown by message boxes and file dialogs. Only once the theme is on the application. */
    void setStandardIcon(QStyle::StandardPixmap place, const QIcon& icon);

signals:
    /** The colours or the font scale are different now; the application itself is already up to date. */
    void themeChanged();

private:
    void refresh();
    void update();

    QSettings& m_settings;
    const Theme::Tone m_startTone;
    QString m_choice;
    qreal m_fontScale = 1.0;
    bool m_isMotionReduced = false;
    /** Of the system, in milliseconds. */
    const int m_cursorFlashTime;
    Theme m_theme;
    SystemColorScheme* m_systemScheme = nullptr; // child; only once the system is followed
    QPointer<QApplication> m_application;
    QPointer<DeskStyle> m_style; // owned by the application
};

} // namespace tw::desktop::theme
