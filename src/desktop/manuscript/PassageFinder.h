#pragma once

#include "desktop/manuscript/TextFinder.h"

namespace tw::desktop::shell {
struct TextPassage;
}

namespace tw::desktop::manuscript {

/** Where a passage stands in a text that may hold its words many times: where what is around them fits best.
 */
[[nodiscard]] std::optional<FoundPlace> findPassage(const QString& text, const shell::TextPassage& passage);

} // namespace tw::desktop::manuscript
