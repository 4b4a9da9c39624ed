#pragma once

#include "core/document/markup/Inline.h"

namespace tw::core::document::markup {

/**
 * Inline Markdown that reads as these runs: parseInline() of it gives canonicalRuns(runs). Escapes what would
 * otherwise read as markup, at the start of a line also what would start a block.
 */
[[nodiscard]] QString writeInline(std::span<const Run> runs);

} // namespace tw::core::document::markup
