#include "desktop/shell/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QSettings>

// Resources of a static library are linked only when something names them; the macro wants the global
// namespace.
static void initializeCatalogues()
{
    Q_INIT_RESOURCE(i18n);
}

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString catalogueFolder = u":/i18n"_s;
const QString catalogueName = u"vellory"_s;
const QString nameSeparator = u"_"_s;

/** The toolkit's own texts, such as those of its file dialog. */
bool loadToolkit(QTranslator& translator, const QLocale& locale)
{
    const QString name = u"qtbase"_s;
    const QString besideProgram = QCoreApplication::applicationDirPath() + u"/translations"_s;
    return translator.load(locale, name, nameSeparator, QLibraryInfo::path(QLibraryInfo::TranslationsPath)) ||
           translator.load(locale, name, nameSeparator, besideProgram);
}

} // namespace

QLocale chooseLocale(const QString& requested, const QSettings& settings)
{
    const QString name =
        requested.isEmpty() ? settings.value("appearance/language"_L1).toString() : requested;
    return name.isEmpty() ? QLocale::system() : QLocale(name);
}

Translations::Translations(const QLocale& locale)
{
    initializeCatalogues();
    // What is installed later is asked first.
    if (m_plurals.load(QLocale(QLocale::English), catalogueName, nameSeparator, catalogueFolder))
        QCoreApplication::installTranslator(&m_plurals);
    if (locale.language() != QLocale::English &&
        m_texts.load(locale, catalogueName, nameSeparator, catalogueFolder))
        QCoreApplication::installTranslator(&m_texts);
    if (loadToolkit(m_toolkit, locale))
        QCoreApplication::installTranslator(&m_toolkit);
}

} // namespace tw::desktop::shell
