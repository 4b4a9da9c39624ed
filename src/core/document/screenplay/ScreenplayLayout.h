#pragma once

#include "core/document/screenplay/ScreenplayText.h"

namespace tw::core::document::screenplay {

/** Characters in a full line of the page: six inches at ten to the inch. */
inline constexpr int lineCharacters = 61;
/** Lines of text on a page of eleven inches: six to the inch, without the margins. */
inline constexpr int pageLines = 54;

/** Where an element stands, in characters from the left edge of a full line. */
struct Column
{
    int indent = 0;
    int width = lineCharacters;
};

/** As the industry sets screenplays. */
[[nodiscard]] Column columnOf(Element element);

/**
 * How many pages the text fills, the last one as a whole; none for a text without a word. A page is about a
 * minute of film. Breaks that keep elements together are not counted.
 */
[[nodiscard]] int pagesOf(const std::vector<QStringView>& lines);

} // namespace tw::core::document::screenplay
