#pragma once

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

/** Sends letters to the middle of the text in a shown window, and waits for each to be painted. */
[[nodiscard]] KeyTimes timeKeys(QTextEdit& edit, int keys);

} // namespace tw::bench
