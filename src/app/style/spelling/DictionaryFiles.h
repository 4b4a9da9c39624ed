#pragma once

#include "app/style/spelling/Dictionaries.h"
#include "core/foundation/Result.h"

#include <QChar>
#include <QSet>

namespace tw::app::style::spelling {

/** What has to be known of a dictionary's files before they are given to the library that uses them. */
struct DictionaryFacts
{
    /** Name of the encoding of both files, as the converters of strings know it. */
    QByteArray encoding;
    /** The scripts that a noticeable part of its words is written in. */
    QSet<QChar::Script> scripts;
};

/**
 * Reads the files and refuses what would lead the library astray: files that are no dictionary, are cut short
 * or claim more words than they have room for, and encodings that are unknown here.
 */
[[nodiscard]] core::Result<DictionaryFacts> examineDictionary(const Dictionary& dictionary);

} // namespace tw::app::style::spelling
