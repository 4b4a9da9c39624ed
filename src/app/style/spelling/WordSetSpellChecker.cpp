#include "app/style/spelling/WordSetSpellChecker.h"

#include "app/style/spelling/SpellingWords.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tw::app::style::spelling {

namespace {

constexpr int mostEdits = 2;
constexpr qsizetype mostSuggestions = 8;

/** Edits from one word to the other, or more than `mostEdits` when there are that many. */
int editsBetween(QStringView left, QStringView right)
{
    if (std::abs(left.size() - right.size()) > mostEdits)
        return mostEdits + 1;
    const auto width = static_cast<std::size_t>(right.size()) + 1;
    std::vector<int> beforeLast(width);
    std::vector<int> last(width);
    std::vector<int> row(width);
    for (std::size_t column = 0; column < width; ++column)
        last[column] = static_cast<int>(column);
    for (qsizetype l = 0; l < left.size(); ++l) {
        row[0] = static_cast<int>(l) + 1;
        for (qsizetype r = 0; r < right.size(); ++r) {
            const auto column = static_cast<std::size_t>(r);
            const int replaced = last[column] + (left[l] == right[r] ? 0 : 1);
            row[column + 1] = std::min({replaced, last[column + 1] + 1, row[column] + 1});
            if (l > 0 && r > 0 && left[l] == right[r - 1] && left[l - 1] == right[r])
                row[column + 1] = std::min(row[column + 1], beforeLast[column - 1] + 1);
        }
        if (std::ranges::min(row) > mostEdits)
            return mostEdits + 1;
        std::swap(beforeLast, last);
        std::swap(last, row);
    }
    return last.back();
}

} // namespace

WordSetSpellChecker::WordSetSpellChecker(const QSet<QString>& words)
{
    for (const QString& word : words) {
        const QString form = spellingForm(word);
        m_words.insert(form);
        m_foldedWords.insert(form.toCaseFolded());
    }
}

bool WordSetSpellChecker::isCorrect(const QString& word) const
{
    if (m_words.isEmpty())
        return false;
    return hasForm(word) || (word.contains(u'\'') && hasForm(withoutPossessive(word)));
}

bool WordSetSpellChecker::hasForm(const QString& word) const
{
    if (m_words.contains(word))
        return true;
    if (isAllCapitals(word))
        return m_foldedWords.contains(word.toCaseFolded());
    return !word.isEmpty() && word.front().isUpper() &&
           m_words.contains(word.front().toLower() + word.sliced(1));
}

QStringList WordSetSpellChecker::suggestions(const QString& word) const
{
    // Of a short word, two edits leave nothing.
    const int edits = word.size() < 4 ? 1 : mostEdits;
    std::vector<std::pair<int, QString>> near;
    if (word.size() <= longestSpellingWord) {
        const QString folded = word.toCaseFolded();
        for (const QString& known : m_words) {
            const int distance = editsBetween(folded, known.toCaseFolded());
            if (distance <= edits)
                near.emplace_back(distance, known);
        }
    }
    std::ranges::sort(near);
    QStringList words;
    for (const auto& [distance, known] : near)
        words.append(known);
    return words.mid(0, mostSuggestions);
}

} // namespace tw::app::style::spelling
