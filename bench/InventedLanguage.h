#pragma once

#include "bench/Random.h"

#include <QString>
#include <QStringList>

namespace tw::bench {

/**
 * A vocabulary of made-up words, few of them short and frequent and most long and rare as in real languages,
 * and the sentences and paragraphs made of it. Draws from the caller's random source, which must outlive it.
 */
class InventedLanguage
{
public:
    explicit InventedLanguage(Random& random);

    [[nodiscard]] const QString& word();
    /** A word with a capital letter, or two of them. */
    [[nodiscard]] QString name();
    /** A few words without a full stop, the first with a capital letter. */
    [[nodiscard]] QString phrase(int words);
    /** Sentences of this many words in total. */
    [[nodiscard]] QString sentences(int words);
    /** Markdown of this many words: scenes of paragraphs, about a third of them spoken. */
    [[nodiscard]] QString prose(int words);

private:
    [[nodiscard]] QString makeWord(int syllables);
    void appendSentence(QString& text, int words);
    [[nodiscard]] int sentenceLength(int wordsLeft);

    Random& m_random;
    QStringList m_words; ///< The most frequent first.
};

} // namespace tw::bench
