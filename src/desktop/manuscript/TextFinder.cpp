#include "desktop/manuscript/TextFinder.h"

#include "app/search/DocumentSearch.h"

#include <QTextBlock>
#include <QTextDocument>

#include <limits>

namespace tw::desktop::manuscript {

TextFinder::TextFinder(const app::search::TextQuery& query)
    : m_isEmpty(query.text.isEmpty())
{
    if (m_isEmpty)
        return;
    auto matcher = app::search::TextMatcher::create(query);
    if (matcher)
        m_matcher = std::move(matcher.value());
    else
        m_error = matcher.message();
}

void TextFinder::eachIn(
    const QTextBlock& block, const std::function<bool(const FoundPlace& place)>& take) const
{
    if (!m_matcher)
        return;
    // An expression that is too complex for a paragraph finds nothing there.
    const auto matches = m_matcher->findIn(block.text(), std::numeric_limits<qsizetype>::max());
    if (!matches)
        return;
    for (const app::search::IndexRange& match : matches.value()) {
        if (!take({block.position() + static_cast<int>(match.first), static_cast<int>(match.count)}))
            return;
    }
}

std::vector<FoundPlace> TextFinder::findAll(const QTextDocument& document, std::size_t most) const
{
    std::vector<FoundPlace> places;
    for (QTextBlock block = document.begin(); block.isValid() && places.size() < most; block = block.next()) {
        eachIn(block, [&](const FoundPlace& place) {
            places.push_back(place);
            return places.size() < most;
        });
    }
    return places;
}

std::optional<FoundPlace> TextFinder::findFrom(const QTextDocument& document, int position) const
{
    std::optional<FoundPlace> found;
    for (QTextBlock block = document.findBlock(position); block.isValid() && !found; block = block.next()) {
        eachIn(block, [&](const FoundPlace& place) {
            if (place.position >= position)
                found = place;
            return !found;
        });
    }
    return found;
}

std::optional<FoundPlace> TextFinder::findBefore(const QTextDocument& document, int position) const
{
    std::optional<FoundPlace> found;
    QTextBlock block = document.findBlock(position);
    for (block = block.isValid() ? block : document.lastBlock(); block.isValid() && !found;
         block = block.previous()) {
        eachIn(block, [&](const FoundPlace& place) {
            if (place.position < position)
                found = place;
            return place.position < position;
        });
    }
    return found;
}

bool TextFinder::hasMatchIn(const core::document::DocumentBody& body) const
{
    if (!m_matcher)
        return false;
    const auto matches = app::search::findMatches(*m_matcher, body, 1);
    return matches && !matches.value().empty();
}

QString TextFinder::replacementFor(
    const QTextDocument& document, const FoundPlace& place, const QString& replacement) const
{
    if (!m_matcher)
        return {};
    const QTextBlock block = document.findBlock(place.position);
    const app::search::IndexRange match{place.position - block.position(), place.length};
    return m_matcher->replacementFor(m_matcher->groupsOf(block.text(), match), replacement);
}

} // namespace tw::desktop::manuscript
