#pragma once

#include <QString>

#include <optional>
#include <string>

namespace tw::app::codex {

/** A name as names are compared: whole characters, composed, without regard to case. */
[[nodiscard]] std::u32string comparableName(const QString& name);

/**
 * How many characters have to be inserted, removed or replaced to make one name of the other; none when it
 * takes more than `most`. Time and space grow with the length times `most`.
 */
[[nodiscard]] std::optional<int> editDistance(std::u32string_view left, std::u32string_view right, int most);

} // namespace tw::app::codex
