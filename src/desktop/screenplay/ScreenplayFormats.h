#pragma once

#include "core/document/screenplay/ScreenplayLayout.h"

#include <QCoreApplication>
#include <QFont>
#include <QTextBlockFormat>

namespace tw::desktop::screenplay {

using core::document::screenplay::Element;

/** The typewriter's font that screenplays are set in, of those that are installed. */
[[nodiscard]] QString typewriterFamily();

using core::document::screenplay::lineCharacters;

/**
 * Where an element stands on the page, as the industry sets it: indents and widths in characters of the
 * typewriter's font, ten to the inch.
 */
[[nodiscard]] QTextBlockFormat formatOf(Element element, qreal characterWidth);

/** The name as a writer knows it. */
[[nodiscard]] QString elementName(Element element);

} // namespace tw::desktop::screenplay
