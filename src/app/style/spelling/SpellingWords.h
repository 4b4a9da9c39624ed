#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace tw::app::style::spelling {

/** Longer words are nobody's spelling mistakes. In UTF-16 code units. */
inline constexpr qsizetype longestSpellingWord = 64;

/** A part of a text, in UTF-16 code units. */
struct TextSpan
{
    qsizetype start = 0;
    qsizetype length = 0;

    [[nodiscard]] qsizetype end() const { return start + length; }

    friend bool operator==(const TextSpan&, const TextSpan&) = default;
};

/**
 * The words of a text that have a spelling: letters with apostrophes and hyphens inside. Left out are words
 * with digits, addresses of pages and mail. Takes time in proportion to the text, whatever stands in it.
 */
[[nodiscard]] std::vector<TextSpan> spellingWords(QStringView text);

/** The parts of a word between its hyphens; the word itself when it has none. */
[[nodiscard]] std::vector<TextSpan> hyphenatedParts(QStringView text, TextSpan word);

/** The word as word lists have it: composed characters, plain apostrophes and hyphens, no soft hyphens. */
[[nodiscard]] QString spellingForm(QStringView word);

/** Whether the word has two letters at least and all of them are capitals. */
[[nodiscard]] bool isAllCapitals(QStringView word);

/** The word without a possessive "'s" or "'" at its end, in the form of spellingForm(). */
[[nodiscard]] QString withoutPossessive(const QString& word);

} // namespace tw::app::style::spelling
