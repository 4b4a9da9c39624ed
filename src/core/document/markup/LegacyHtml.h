#pragma once

#include "core/document/Document.h"

namespace tw::core::document::markup {

/**
 * Rich text as Markdown with attribute groups: bodies of the legacy format and pasted fragments. Tolerates
 * anything; scripts, style sheets and comments are dropped, links and images only kept when harmless. In time
 * linear in the length.
 */
[[nodiscard]] QString htmlToMarkdown(QStringView html);

/** The body as Markdown, whatever its format. */
[[nodiscard]] QString markdownOf(const DocumentBody& body);

} // namespace tw::core::document::markup
