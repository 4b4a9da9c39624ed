#pragma once

#include <QLocale>
#include <QTranslator>

class QSettings;

namespace tw::desktop::shell {

/**
 * The locale of the interface: the one asked for at this start, else that of "appearance/language", else the
 * system's. A name that no locale has leaves the interface in English. Changes no setting.
 */
[[nodiscard]] QLocale chooseLocale(const QString& requested, const QSettings& settings);

/**
 * The catalogues of the interface, installed in the application for as long as this lives. Create it before
 * the first text is asked for and after the application object.
 */
class Translations
{
public:
    /** A catalogue that is missing leaves its texts as they are in the source. */
    explicit Translations(const QLocale& locale);

private:
    /** The texts in the source are English, but count things only in the plural. */
    QTranslator m_plurals;
    QTranslator m_texts;
    QTranslator m_toolkit;
};

} // namespace tw::desktop::shell
