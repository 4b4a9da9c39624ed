#include "desktop/manuscript/PassageFinder.h"

#include "desktop/shell/Navigator.h"

#include <algorithm>

namespace tw::desktop::manuscript {

namespace {

/** A passage shows line ends and such as blanks. */
bool reads(QChar shown, QChar stands)
{
    return shown == stands || (shown.isSpace() && stands.isSpace());
}

} // namespace

std::optional<FoundPlace> findPassage(const QString& text, const shell::TextPassage& passage)
{
    const QString& words = passage.words;
    std::optional<FoundPlace> best;
    std::ptrdiff_t bestFit = -1;
    if (words.isEmpty())
        return best;
    const auto standsAt = [&](qsizetype start) {
        return std::equal(words.begin(), words.end(), text.begin() + start, reads);
    };
    for (qsizetype start = 0; start + words.size() <= text.size(); ++start) {
        if (!reads(words.front(), text[start]) || !standsAt(start))
            continue;
        const auto before = std::mismatch(
            passage.before.rbegin(), passage.before.rend(), std::make_reverse_iterator(text.begin() + start),
            text.rend(), reads);
        const auto after = std::mismatch(
            passage.after.begin(), passage.after.end(), text.begin() + start + words.size(), text.end(),
            reads);
        const std::ptrdiff_t fit =
            (before.first - passage.before.rbegin()) + (after.first - passage.after.begin());
        if (fit > bestFit) {
            bestFit = fit;
            best = FoundPlace{static_cast<int>(start), static_cast<int>(words.size())};
        }
    }
    return best;
}

} // namespace tw::desktop::manuscript
