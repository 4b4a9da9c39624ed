#pragma once

#include "core/document/Document.h"

namespace tw::core::document::markup {

struct HtmlOptions
{
    /** Notes that stand beside the body; a definition in the body comes before them. */
    std::vector<Footnote> footnotes;
};

/**
 * A Markdown body as the contents of an HTML page's body. All text is escaped; targets, colours, fonts and
 * alignments that are not known to be harmless are left out, and nothing in the body becomes an element or a
 * script of its own.
 */
[[nodiscard]] QString renderHtml(QStringView body, const HtmlOptions& options = {});

} // namespace tw::core::document::markup
