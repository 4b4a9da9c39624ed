// What tags and style attributes of rich text say of runs and blocks.
#pragma once

#include "core/document/markup/HtmlTokenizer.h"
#include "core/document/markup/Inline.h"

namespace tw::core::document::markup {

/** The style within an inline element of this tag, around which `outer` holds. */
[[nodiscard]] RunStyle styleWithin(const HtmlToken& tag, RunStyle outer);

/** The attributes of a block element. */
[[nodiscard]] BlockAttributes blockAttributesOf(const HtmlToken& tag);

} // namespace tw::core::document::markup
