#include "core/document/WordCount.h"

#include <QChar>

namespace tw::core::document {

namespace {

bool isWordCharacter(QChar character)
{
    // Halves of a surrogate pair count as letters: the scripts beyond the first plane are letters all.
    return character.isLetterOrNumber() || character.isMark() || character.isSurrogate();
}

bool joinsWords(QChar character)
{
    return character == u'\'' || character == u'\u2019' || character == u'-' || character == u'\u2010' ||
           character == u'\u2011' || character == u'_';
}

} // namespace

qint64 countWords(QStringView text)
{
    qint64 words = 0;
    bool isInWord = false;
    for (qsizetype index = 0; index < text.size(); ++index) {
        const QChar character = text[index];
        if (isWordCharacter(character)) {
            words += isInWord ? 0 : 1;
            isInWord = true;
        } else if (isInWord && joinsWords(character)) {
            isInWord = index + 1 < text.size() && isWordCharacter(text[index + 1]);
        } else {
            isInWord = false;
        }
    }
    return words;
}

} // namespace tw::core::document
