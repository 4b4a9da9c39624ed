#pragma once

#include "app/style/spelling/SpellChecker.h"

#include <QSet>

namespace tw::app::style::spelling {

/**
 * A list of words: names, or what a writer has added. A word is right as it stands in the list, with a
 * capital first letter, in capitals, and with a possessive ending. Does not change once it is made.
 */
class WordSetSpellChecker final : public SpellChecker
{
public:
    WordSetSpellChecker() = default;
    explicit WordSetSpellChecker(const QSet<QString>& words);

    /** Always: what is not in the list may be right elsewhere, but is not right here. */
    [[nodiscard]] bool canJudge(const QString&) const override { return true; }
    [[nodiscard]] bool isCorrect(const QString& word) const override;
    /** Words of the list at most two edits away; a neighbouring pair in the wrong order is one edit. */
    [[nodiscard]] QStringList suggestions(const QString& word) const override;

private:
    [[nodiscard]] bool hasForm(const QString& word) const;

    QSet<QString> m_words;
    QSet<QString> m_foldedWords;
};

} // namespace tw::app::style::spelling
