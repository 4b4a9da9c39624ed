#pragma once

#include <QString>

#include <set>

namespace tw::desktop::screenplay {

/**
 * The lines of the text, counted from 0, that are new or different since the baseline. Where lines were only
 * taken out, the line that follows counts, so that the mark is seen; empty lines carry no mark of their own.
 */
[[nodiscard]] std::set<int> revisedLinesOf(const QString& baseline, const QString& text);

} // namespace tw::desktop::screenplay
