#pragma once

#include <utility>
#include <vector>

class QTextEdit;

namespace tw::bench {

/** Times from a key to the first painting after it, in milliseconds. */
struct KeyTimes
{
    std::vector<double> times;

    /** The time that a share of all keys (0 to 1) did not exceed. */
    [[nodiscard]] double quantile(double share) const;
};

/**
 * Sends letters to the middle of the text of two shown edits in turn, so that whatever else the machine does
 * meets both alike, and waits for each letter to be painted. Gives the times of the first and of the second.
 */
[[nodiscard]] std::pair<KeyTimes, KeyTimes> timeKeys(QTextEdit& first, QTextEdit& second, int keys);

} // namespace tw::bench
