#pragma once

#include <QStringView>

namespace tw::core::document {

/**
 * The words of prose as a writer counts them: runs of letters and digits, together with the apostrophes and
 * hyphens inside them; dashes part words. Attribute groups, footnote references and stand-ins of pictures are
 * as if they were not there. One pass, without allocations. For Markdown see markup::countBodyWords().
 */
[[nodiscard]] qint64 countWords(QStringView prose);

[[nodiscard]] bool isWordCharacter(QChar character);
/** Inside a word, as a hyphen; not at its ends. */
[[nodiscard]] bool joinsWords(QChar character);

} // namespace tw::core::document
