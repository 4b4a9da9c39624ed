#pragma once

#include <QString>

namespace tw::bench {

/** Prose of about so many characters: paragraphs, dialogue, now and then a heading, stress and a break. */
[[nodiscard]] QString writtenText(qsizetype characters);

} // namespace tw::bench
