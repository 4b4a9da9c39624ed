#pragma once

#include "app/style/WordTable.h"

#include <QStringView>

#include <vector>

namespace tw::app::style {

/** What stands between a word and the one before it. */
enum class Gap : quint8
{
    /** Nothing but one blank. */
    Blank,
    /** Nothing but blanks and tabs. */
    Blanks,
    /** Nothing but white space. */
    WhiteSpace,
    /** Something else, or no word comes before. */
    Other,
};

/** A run of letters, numbers and underscores that nothing of the kind touches. */
struct Word
{
    /** In UTF-16 code units. */
    qsizetype start = 0;
    qsizetype length = 0;
    WordId id = unknownWord;
    Gap gap = Gap::Other;
    bool isLettersOnly = true;

    [[nodiscard]] qsizetype end() const { return start + length; }
};

/** From its first to its last character that is no white space, closing punctuation included. */
struct Sentence
{
    /** In UTF-16 code units. */
    qsizetype start = 0;
    qsizetype length = 0;
    /** Runs of characters that are no white space. */
    qsizetype words = 0;
};

/** A text taken apart in one pass, for all rules. Refers to the text, which must outlive it. */
class ScannedText
{
public:
    explicit ScannedText(QStringView text);

    [[nodiscard]] QStringView text() const { return m_text; }
    [[nodiscard]] QStringView textOf(const Word& word) const
    {
        return m_text.sliced(word.start, word.length);
    }
    [[nodiscard]] const std::vector<Word>& words() const { return m_words; }
    [[nodiscard]] const std::vector<Sentence>& sentences() const { return m_sentences; }

private:
    QStringView m_text;
    std::vector<Word> m_words;
    std::vector<Sentence> m_sentences;
};

} // namespace tw::app::style
