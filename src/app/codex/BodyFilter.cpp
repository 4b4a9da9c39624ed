#include "app/codex/BodyFilter.h"

#include <algorithm>

namespace tw::app::codex {

namespace {

/** The longest run of letters and digits: what stands in the source of a body as it stands in its prose. */
QString longestWord(const QString& text)
{
    qsizetype bestStart = 0;
    qsizetype bestLength = 0;
    for (qsizetype start = 0; start < text.size();) {
        qsizetype end = start;
        while (end < text.size() && (text[end].isLetterOrNumber() || text[end].isMark()))
            ++end;
        if (end - start > bestLength) {
            bestStart = start;
            bestLength = end - start;
        }
        start = end + 1;
    }
    return text.sliced(bestStart, bestLength);
}

bool isAscii(const QString& text)
{
    return std::ranges::all_of(text, [](QChar character) { return character.unicode() < 0x80; });
}

} // namespace

BodyFilter::BodyFilter(const QString& text, Qt::CaseSensitivity sensitivity)
    : m_word(longestWord(text), sensitivity)
    , m_isAsciiWord(isAscii(m_word.pattern()))
{}

bool BodyFilter::mayHoldText(const core::document::DocumentBody& body) const
{
    // Rich text may spell other letters as entities.
    const bool mayBeSpelled = body.format == core::document::BodyFormat::Html && !m_isAsciiWord;
    return mayBeSpelled || m_word.indexIn(body.text) >= 0;
}

} // namespace tw::app::codex
