#pragma once

#include <QStringList>

namespace tw::bench {

/** Prose of about so many characters: paragraphs, dialogue, now and then a heading, stress and a break. */
[[nodiscard]] QString writtenText(qsizetype characters);

/** All the words that it is made of. */
[[nodiscard]] QStringList writtenWords();

} // namespace tw::bench
