#include "app/style/ScannedText.h"

#include "app/style/CharacterClasses.h"

#include <algorithm>

namespace tw::app::style {

namespace {

/** Room for the words of usual prose; a guess that only spares allocations. */
constexpr qsizetype unitsPerWord = 5;

/** Cuts the characters that go by into sentences: anything, then a run of sentence ends. */
class SentenceCutter
{
public:
    explicit SentenceCutter(std::vector<Sentence>& sentences)
        : m_sentences(sentences)
    {}

    /** A run of characters that are neither white space nor sentence ends. */
    void takeRun(qsizetype start, qsizetype end)
    {
        beginAfterEnd();
        m_isOpen = true;
        extend(start, end);
    }

    void takeWhiteSpace()
    {
        beginAfterEnd();
        m_isOpen = true;
        m_isInRun = false;
    }

    void takeSentenceEnd(qsizetype index)
    {
        // Sentence ends with nothing before them belong to no sentence.
        if (!m_isOpen)
            return;
        extend(index, index + 1);
        m_hasEnded = true;
    }

    void finish()
    {
        if (m_current.words > 0)
            m_sentences.push_back(m_current);
    }

private:
    void beginAfterEnd()
    {
        if (!m_hasEnded)
            return;
        finish();
        m_current = {};
        m_hasEnded = false;
        m_isInRun = false;
    }

    void extend(qsizetype start, qsizetype end)
    {
        if (!m_isInRun) {
            if (m_current.words == 0)
                m_current.start = start;
            ++m_current.words;
            m_isInRun = true;
        }
        m_current.length = end - m_current.start;
    }

    std::vector<Sentence>& m_sentences;
    Sentence m_current;
    bool m_isOpen = false;
    bool m_isInRun = false;
    bool m_hasEnded = false;
};

/** What a gap becomes when a character of white space joins it. Before any character it is none. */
class GapWatch
{
public:
    void restart() { m_isEmpty = true; }

    void takeWhiteSpace(QChar character)
    {
        if (character != u' ' && character != u'\t')
            widen(Gap::WhiteSpace);
        else
            widen(m_isEmpty && character == u' ' ? Gap::Blank : Gap::Blanks);
    }

    void takeOther() { widen(Gap::Other); }

    [[nodiscard]] Gap gap() const { return m_gap; }

private:
    void widen(Gap gap)
    {
        m_gap = m_isEmpty ? gap : std::max(m_gap, gap);
        m_isEmpty = false;
    }

    Gap m_gap = Gap::Other;
    bool m_isEmpty = false;
};

/** Reads the word at `index`. */
Word readWord(QStringView text, qsizetype index, const CharacterClasses& classes, const WordTable& table)
{
    Word word{.start = index};
    WordHash hash;
    while (index < text.size()) {
        const auto [kinds, units] = classes.at(text, index);
        if ((kinds & WordCharacter) == 0)
            break;
        word.isLettersOnly = word.isLettersOnly && (kinds & Letter) != 0;
        hash.add(text[index].unicode());
        index += units;
    }
    word.length = index - word.start;
    word.id = table.find(text.sliced(word.start, word.length), hash);
    return word;
}

} // namespace

ScannedText::ScannedText(QStringView text)
    : m_text(text)
{
    const CharacterClasses& classes = CharacterClasses::shared();
    const WordTable& table = WordTable::shared();
    m_words.reserve(static_cast<std::size_t>(text.size() / unitsPerWord));
    SentenceCutter sentences(m_sentences);
    GapWatch gap;
    for (qsizetype index = 0; index < text.size();) {
        const auto [kinds, units] = classes.at(text, index);
        if ((kinds & WordCharacter) != 0) {
            Word word = readWord(text, index, classes, table);
            word.gap = gap.gap();
            gap.restart();
            sentences.takeRun(index, word.end());
            index = word.end();
            m_words.push_back(word);
            continue;
        }
        if ((kinds & WhiteSpace) != 0) {
            gap.takeWhiteSpace(text[index]);
            sentences.takeWhiteSpace();
        } else {
            gap.takeOther();
            if ((kinds & SentenceEnd) != 0)
                sentences.takeSentenceEnd(index);
            else
                sentences.takeRun(index, index + units);
        }
        index += units;
    }
    sentences.finish();
}

} // namespace tw::app::style
