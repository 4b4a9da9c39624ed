#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace tw::app::style::spelling {

/** The two files of an installed dictionary. */
struct Dictionary
{
    /** As "en_US"; also "en" or "de_DE_frami". */
    QString language;
    /** Rules of how words are formed. */
    QString affixPath;
    QString wordsPath;

    friend bool operator==(const Dictionary&, const Dictionary&) = default;
};

/** Where this system keeps dictionaries, the user's own folder first. They need not exist. */
[[nodiscard]] QStringList dictionaryFolders();

/** The dictionaries in the folders, by language; of two for one language, that of the earlier folder. */
[[nodiscard]] std::vector<Dictionary> installedDictionaries(const QStringList& folders);

/**
 * The language of the list that serves someone whose system speaks `wanted` ("de_AT"): that one, else another
 * of the same language; empty when there is none.
 */
[[nodiscard]] QString nearestLanguage(const QStringList& languages, const QString& wanted);

} // namespace tw::app::style::spelling
