#pragma once

#include "app/style/spelling/SpellChecker.h"
#include "app/style/spelling/SpellingWords.h"

#include <memory>
#include <vector>

namespace tw::app::style::spelling {

/** Whose words count. */
struct SpellingSources
{
    /** A word is right when one of them says so; without any, every word is. */
    std::vector<std::shared_ptr<const SpellChecker>> languages;
    /** The user's words and the names of the codex. */
    std::vector<std::shared_ptr<const SpellChecker>> ownWords;
    /** Words in capitals are names and shouting, and not looked at. */
    bool skipsAllCapitals = false;
};

/** Finds the words of a text that nobody knows. A value; may be used from any thread. */
class Speller
{
public:
    explicit Speller(SpellingSources sources = {});

    /** In the order of the text. Of a word with hyphens, the parts that are wrong. */
    [[nodiscard]] std::vector<TextSpan> misspellings(QStringView text) const;

    /** What a word of a text may have been meant to be, at most eight, the likeliest first. Slow. */
    [[nodiscard]] QStringList suggestions(QStringView word) const;

private:
    [[nodiscard]] bool isRight(QStringView word) const;

    SpellingSources m_sources;
};

} // namespace tw::app::style::spelling
