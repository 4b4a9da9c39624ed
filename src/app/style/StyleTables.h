#pragma once

#include <QStringView>

#include <span>

namespace tw::app::style {

/** A phrase of lower-case words with single blanks between them, and what may stand in its place. */
struct Phrase
{
    QStringView text;
    /** Empty when there is none. */
    QStringView alternative;
};

/** Words in -ly that are no adverbs of manner, and those that are reported as filler. */
[[nodiscard]] std::span<const QStringView> adverbExceptions();
/** The forms of the verb "to be". */
[[nodiscard]] std::span<const QStringView> auxiliaryVerbs();
/** Past participles that do not end in -ed. */
[[nodiscard]] std::span<const QStringView> irregularParticiples();

// Of two phrases that begin at the same word the earlier one of the table is reported.
[[nodiscard]] std::span<const Phrase> clichePhrases();
[[nodiscard]] std::span<const Phrase> fillerPhrases();
[[nodiscard]] std::span<const Phrase> wordyPhrases();

} // namespace tw::app::style
