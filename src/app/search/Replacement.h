#pragma once

#include "app/search/DocumentSearch.h"

namespace tw::app::search {

/** A text with matches replaced, and what came of them. */
template <class Text>
struct Replaced
{
    Text text;
    /** How many there are now: those that read as the replacement before are not among them. */
    qsizetype made = 0;
    /** Left as they were, because groups tear the marks around them apart. */
    qsizetype refused = 0;
};

/**
 * A body with some matches of findMatches() in it replaced. Only the blocks that hold one are written anew;
 * marks, links and groups stay around what takes the place of the text in them, and nothing in a replacement
 * becomes markup. A legacy body becomes Markdown.
 *
 * `matches` are in order. A match that no longer stands in the body is left out.
 */
[[nodiscard]] Replaced<core::document::DocumentBody> buildReplacement(
    const core::document::DocumentBody& body, const TextMatcher& matcher,
    const std::vector<TextMatch>& matches, const QString& replacement);

/** A title or synopsis with some of its matches replaced. */
[[nodiscard]] Replaced<QString> replaceInText(
    const QString& text, const TextMatcher& matcher, const std::vector<TextMatch>& matches,
    const QString& replacement);

} // namespace tw::app::search
