#include "app/style/spelling/Dictionaries.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <map>

namespace tw::app::style::spelling {

namespace {

using namespace Qt::StringLiterals;

QString primaryLanguage(const QString& language)
{
    return language.section(u'_', 0, 0).toLower();
}

QString withUnderscores(QString language)
{
    return language.replace(u'-', u'_');
}

} // namespace

QStringList dictionaryFolders()
{
    QStringList folders;
    const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (!own.isEmpty())
        folders.append(own + u"/dictionaries"_s);
    for (const QString& data : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
        folders.append(data + u"/hunspell"_s);
        folders.append(data + u"/myspell/dicts"_s);
        folders.append(data + u"/myspell"_s);
    }
    return folders;
}

std::vector<Dictionary> installedDictionaries(const QStringList& folders)
{
    std::map<QString, Dictionary> byLanguage;
    for (const QString& folder : folders) {
        const QDir directory(folder);
        for (const QString& name :
             directory.entryList({u"*.dic"_s}, QDir::Files | QDir::Readable, QDir::Name)) {
            const QString base = name.chopped(4);
            const QString affixPath = directory.filePath(base + u".aff"_s);
            // Hyphenation patterns share the folders, the ending and nothing else.
            if (base.startsWith("hyph_"_L1) || !QFileInfo(affixPath).isReadable())
                continue;
            const QString language = withUnderscores(base);
            byLanguage.try_emplace(language, Dictionary{language, affixPath, directory.filePath(name)});
        }
    }
    std::vector<Dictionary> dictionaries;
    for (const auto& [language, dictionary] : byLanguage)
        dictionaries.push_back(dictionary);
    return dictionaries;
}

QString nearestLanguage(const QStringList& languages, const QString& wanted)
{
    const QString exact = withUnderscores(wanted);
    if (languages.contains(exact))
        return exact;
    const QString primary = primaryLanguage(exact);
    // Where a language has a country of its own name, that is the usual form of it: "de_DE", "fr_FR".
    const QString usual = primary + u'_' + primary.toUpper();
    for (const QString& candidate : {primary, usual, QString(primary == "en"_L1 ? u"en_US"_s : QString())}) {
        if (languages.contains(candidate))
            return candidate;
    }
    for (const QString& language : languages) {
        if (!primary.isEmpty() && primaryLanguage(language) == primary)
            return language;
    }
    return {};
}

} // namespace tw::app::style::spelling
