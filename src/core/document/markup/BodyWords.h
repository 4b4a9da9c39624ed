#pragma once

#include "core/document/Document.h"

namespace tw::core::document::markup {

/**
 * The words of a Markdown body: those of its PlainText, so that marks, numbers of lists, targets of links and
 * the like count for nothing. Plain paragraphs are counted in one pass, without allocations.
 */
[[nodiscard]] qint64 countBodyWords(QStringView markdown);

/** The words of a body in either format. */
[[nodiscard]] qint64 countBodyWords(const DocumentBody& body);

} // namespace tw::core::document::markup
