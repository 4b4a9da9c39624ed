#include "bench/InventedLanguage.h"

#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace tw::bench {

namespace {

constexpr int vocabularySize = 12'000;
constexpr int shortWords = 60;
constexpr int commonWords = 1'200;
constexpr int longestSentence = 32;

QString capitalised(QString text)
{
    text[0] = text.at(0).toUpper();
    return text;
}

} // namespace

InventedLanguage::InventedLanguage(Random& random)
    : m_random(random)
{
    QSet<QString> known;
    m_words.reserve(vocabularySize);
    while (m_words.size() < vocabularySize) {
        const qsizetype rank = m_words.size();
        int syllables = 1;
        if (rank >= commonWords)
            syllables = m_random.count(2, 3);
        else if (rank >= shortWords)
            syllables = m_random.count(1, 2);
        const QString word = makeWord(syllables);
        if (!known.contains(word)) {
            known.insert(word);
            m_words.append(word);
        }
    }
}

QString InventedLanguage::makeWord(int syllables)
{
    static const std::vector<QString> onsets{u"b"_s, u"c"_s, u"d"_s, u"f"_s, u"g"_s,  u"h"_s,  u"k"_s,
                                             u"l"_s, u"m"_s, u"n"_s, u"p"_s, u"r"_s,  u"s"_s,  u"t"_s,
                                             u"v"_s, u"w"_s, u"y"_s, u""_s,  u"br"_s, u"st"_s, u"th"_s};
    static const std::vector<QString> nuclei{u"a"_s, u"e"_s, u"i"_s, u"o"_s, u"u"_s, u"e"_s, u"a"_s, u"ea"_s};
    static const std::vector<QString> codas{u""_s,  u""_s,  u""_s,  u""_s,  u"n"_s,
                                            u"r"_s, u"s"_s, u"l"_s, u"nd"_s};
    QString word;
    for (int syllable = 0; syllable < syllables; ++syllable) {
        word += m_random.oneOf(onsets);
        word += m_random.oneOf(nuclei);
        word += m_random.oneOf(codas);
    }
    return word;
}

const QString& InventedLanguage::word()
{
    // The fourth power of an even distribution: a few words make up most of a text.
    const double position = static_cast<double>(m_random.below(1'000'000)) / 1'000'000.0;
    return m_words.at(static_cast<qsizetype>(position * position * position * position * vocabularySize));
}

QString InventedLanguage::name()
{
    const auto rareWord = [this] {
        return capitalised(m_words.at(m_random.between(commonWords, vocabularySize - 1)));
    };
    return m_random.chance(40) ? rareWord() + u' ' + rareWord() : rareWord();
}

QString InventedLanguage::phrase(int words)
{
    QString text = capitalised(word());
    for (int index = 1; index < words; ++index)
        text += u' ' + word();
    return text;
}

int InventedLanguage::sentenceLength(int wordsLeft)
{
    // The sum of three dice: most sentences are of middle length.
    const int length =
        1 + m_random.count(0, 9) + m_random.count(0, 9) + m_random.count(0, longestSentence - 19);
    return std::min(length, wordsLeft);
}

void InventedLanguage::appendSentence(QString& text, int words)
{
    text += capitalised(word());
    for (int index = 1; index < words; ++index) {
        text += m_random.chance(9) ? u", "_s : u" "_s;
        text += word();
    }
    static const std::vector<QString> ends{u"."_s, u"."_s, u"."_s, u"."_s, u"."_s, u"."_s, u"?"_s, u"!"_s};
    text += m_random.oneOf(ends);
}

QString InventedLanguage::sentences(int words)
{
    QString text;
    while (words > 0) {
        const int length = sentenceLength(words);
        words -= length;
        if (!text.isEmpty())
            text += u' ';
        appendSentence(text, length);
    }
    return text;
}

QString InventedLanguage::prose(int words)
{
    QString text;
    while (words > 0) {
        if (!text.isEmpty())
            text += m_random.chance(3) ? u"\n\n---\n\n"_s : u"\n\n"_s;
        const int length = std::min(words, m_random.count(12, 130));
        words -= length;
        // What is said stands in short paragraphs of its own.
        if (m_random.chance(35))
            text += u'\u201c' + sentences(length) + u'\u201d';
        else
            text += sentences(length);
    }
    return text;
}

} // namespace tw::bench
