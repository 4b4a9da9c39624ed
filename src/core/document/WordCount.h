#pragma once

#include <QStringView>

namespace tw::core::document {

/**
 * The words of a Markdown text as a writer counts them: runs of letters and digits, together with the
 * apostrophes and hyphens inside them; dashes part words, marks of the markup are none. Linear in the length.
 */
[[nodiscard]] qint64 countWords(QStringView text);

} // namespace tw::core::document
