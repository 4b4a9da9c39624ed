#pragma once

class QTextDocument;

namespace tw::desktop::fields {

/** In UTF-16 code units; no language has words like that, what is pasted into a text may. */
inline constexpr int longestWord = 10'000;

/**
 * Has the lines of a document break anywhere for as long as it holds a word longer than that: laying one out
 * that may only break in need takes the square of its length, minutes for a megabyte. Call once, at the
 * start.
 */
void breakLongWordsAnywhere(QTextDocument& document);

} // namespace tw::desktop::fields
