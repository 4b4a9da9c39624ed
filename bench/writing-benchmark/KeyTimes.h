#pragma once

#include <functional>
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

/** Where letters are written. */
enum class Place
{
    Middle,
    End,
};

struct Typing
{
    int keys = 300;
    Place place = Place::Middle;
    /**
     * Called before each word that the first edit gets. The window lives on for so many milliseconds until
     * the key is pressed; what keeps it longer counts as time of the key. Without it keys follow at once.
     */
    std::function<double()> beforeWord = {};
};

/**
 * Sends letters to the same paragraph of two shown edits in turn, so that whatever else the machine does
 * meets both alike, and waits for each letter to be painted. Gives the times of the first and of the second.
 */
[[nodiscard]] std::pair<KeyTimes, KeyTimes> timeKeys(
    QTextEdit& first, QTextEdit& second, const Typing& typing);

} // namespace tw::bench
