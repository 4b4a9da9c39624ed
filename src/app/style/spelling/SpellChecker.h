#pragma once

#include <QString>
#include <QStringList>

namespace tw::app::style::spelling {

/**
 * Knows which words of something are spelled right: of a language, or of a list. Words are in the form of
 * spellingForm(). All functions may be called from any thread.
 */
class SpellChecker
{
public:
    virtual ~SpellChecker() = default;

    /** False for a word in letters that the list has none of: whether it is right cannot be known here. */
    [[nodiscard]] virtual bool canJudge(const QString& word) const = 0;
    [[nodiscard]] virtual bool isCorrect(const QString& word) const = 0;
    /** What the word may have been meant to be, the likeliest first. May take a tenth of a second. */
    [[nodiscard]] virtual QStringList suggestions(const QString& word) const = 0;

protected:
    SpellChecker() = default;
    Q_DISABLE_COPY_MOVE(SpellChecker)
};

} // namespace tw::app::style::spelling
