#include "app/style/spelling/Speller.h"

#include <algorithm>

namespace tw::app::style::spelling {

namespace {

constexpr qsizetype mostSuggestions = 8;
constexpr char16_t typographicApostrophe = u'\u2019';

} // namespace

Speller::Speller(SpellingSources sources)
    : m_sources(std::move(sources))
{}

std::vector<TextSpan> Speller::misspellings(QStringView text) const
{
    std::vector<TextSpan> wrong;
    if (m_sources.languages.empty())
        return wrong;
    for (const TextSpan& word : spellingWords(text)) {
        if (isRight(text.sliced(word.start, word.length)))
            continue;
        for (const TextSpan& part : hyphenatedParts(text, word)) {
            if (part.length > 1 && !isRight(text.sliced(part.start, part.length)))
                wrong.push_back(part);
        }
    }
    return wrong;
}

QStringList Speller::suggestions(QStringView word) const
{
    const QString form = spellingForm(word);
    QStringList words;
    for (const auto& source : m_sources.ownWords)
        words += source->suggestions(form).mid(0, mostSuggestions / 4);
    for (const auto& language : m_sources.languages) {
        if (language->canJudge(form))
            words += language->suggestions(form);
    }
    words.removeDuplicates();
    // Who writes with typographic apostrophes gets them.
    if (word.contains(typographicApostrophe))
        words.replaceInStrings(QString(u'\''), QString(typographicApostrophe));
    return words.mid(0, mostSuggestions);
}

bool Speller::isRight(QStringView word) const
{
    if (word.size() > longestSpellingWord)
        return !std::ranges::any_of(word, [](QChar unit) { return unit == u'-'; });
    if (m_sources.skipsAllCapitals && isAllCapitals(word))
        return true;
    const QString form = spellingForm(word);
    const auto knows = [&form](const auto& source) { return source->isCorrect(form); };
    if (std::ranges::any_of(m_sources.ownWords, knows))
        return true;
    bool isJudged = false;
    for (const auto& language : m_sources.languages) {
        if (language->isCorrect(form))
            return true;
        isJudged = isJudged || language->canJudge(form);
    }
    return !isJudged;
}

} // namespace tw::app::style::spelling
