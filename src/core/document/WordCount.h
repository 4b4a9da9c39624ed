#pragma once

#include <QStringView>

namespace tw::core::document {

/**
 * The words of a Markdown body as a writer counts them: runs of letters and digits, together with the
 * apostrophes and hyphens inside them; dashes part words, marks of the markup are none. Attribute groups,
 * footnote references, images and the targets of links are as if they were not there. One pass, without
 * allocations.
 */
[[nodiscard]] qint64 countWords(QStringView body);

} // namespace tw::core::document
