#pragma once

#include "app/typing/TypingCorrection.h"

class QSettings;

namespace tw::desktop::manuscript {

/**
 * What is corrected while one types: nothing when "editor/autoCorrect" is off. "typing/quotes" is a language
 * ("de-CH"), "off", or unset for the language of the program; "typing/dashes" and "typing/ellipsis" are
 * switches, on until set.
 */
[[nodiscard]] app::typing::TypingRules typingRulesFrom(const QSettings& settings);

namespace typingkeys {
inline constexpr QLatin1StringView autoCorrect{"editor/autoCorrect"};
inline constexpr QLatin1StringView quotes{"typing/quotes"};
inline constexpr QLatin1StringView dashes{"typing/dashes"};
inline constexpr QLatin1StringView ellipsis{"typing/ellipsis"};
/** Whether names of the codex are underlined in texts. */
inline constexpr QLatin1StringView mentions{"editor/underlineNames"};
inline constexpr QLatin1StringView quotesOff{"off"};
} // namespace typingkeys

} // namespace tw::desktop::manuscript
