#include "app/style/WordRules.h"

#include "app/style/StyleTables.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace tw::app::style {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype longestSentence = 40;

StyleFinding findingBetween(IssueKind kind, const Word& first, const Word& last, const QString& message)
{
    return {first.start, last.end() - first.start, kind, message, {}};
}

/** `ending` is of two ASCII letters in lower case; `charactersBefore` are whole characters, not code units.
 */
bool endsAfter(QStringView word, qsizetype charactersBefore, QStringView ending)
{
    if (word.size() < charactersBefore + ending.size() || !word.endsWith(ending, Qt::CaseInsensitive))
        return false;
    const QStringView before = word.chopped(ending.size());
    const auto secondHalves = std::ranges::count_if(before, [](QChar unit) { return unit.isLowSurrogate(); });
    return before.size() - secondHalves >= charactersBefore;
}

bool isAdverbException(QStringView word)
{
    static const QSet<QString> exceptions = [] {
        QSet<QString> words;
        for (const QStringView exception : adverbExceptions())
            words.insert(exception.toString());
        return words;
    }();
    return exceptions.contains(word.toString().toLower());
}

/** Whether two words are the same letter by letter, ignoring case. */
bool isSameWord(QStringView left, QStringView right)
{
    // Not QStringView::compare: its order of cases is not everywhere that of single characters.
    qsizetype l = 0;
    qsizetype r = 0;
    const auto next = [](QStringView word, qsizetype& index) {
        const QChar unit = word[index++];
        if (unit.isHighSurrogate())
            return QChar::toCaseFolded(QChar::surrogateToUcs4(unit, word[index++]));
        return QChar::toCaseFolded(char32_t(unit.unicode()));
    };
    while (l < left.size() && r < right.size()) {
        if (next(left, l) != next(right, r))
            return false;
    }
    return l == left.size() && r == right.size();
}

} // namespace

QString AdverbRule::id() const
{
    return u"adverb"_s;
}

void AdverbRule::inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const
{
    for (const Word& word : text.words()) {
        const QStringView adverb = text.textOf(word);
        if (!word.isLettersOnly || !endsAfter(adverb, 2, u"ly") || isAdverbException(adverb))
            continue;
        findings.push_back(findingBetween(
            kind(), word, word,
            QCoreApplication::translate("StyleRule", "Adverb: %1. Consider a stronger verb.").arg(adverb)));
    }
}

QString PassiveVoiceRule::id() const
{
    return u"passive-voice"_s;
}

void PassiveVoiceRule::inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const
{
    const WordTable& table = WordTable::shared();
    const std::vector<Word>& words = text.words();
    const auto follows = [&words](std::size_t index) {
        return index < words.size() && words[index].gap != Gap::Other;
    };
    for (std::size_t first = 0; first < words.size(); ++first) {
        if (!table.isAuxiliary(words[first].id) || !follows(first + 1))
            continue;
        std::size_t last = first + 1;
        if (table.isNegation(words[last].id) || endsAfter(text.textOf(words[last]), 1, u"ly")) {
            if (!follows(++last))
                continue;
        }
        if (!table.isParticiple(words[last].id) && !endsAfter(text.textOf(words[last]), 2, u"ed"))
            continue;
        const QStringView clause =
            text.text().sliced(words[first].start, words[last].end() - words[first].start);
        findings.push_back(findingBetween(
            kind(), words[first], words[last],
            QCoreApplication::translate("StyleRule", "Passive voice: %1").arg(clause)));
        first = last;
    }
}

QString RepeatedWordRule::id() const
{
    return u"repeated-word"_s;
}

void RepeatedWordRule::inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const
{
    const std::vector<Word>& words = text.words();
    for (std::size_t second = 1; second < words.size(); ++second) {
        const Word& first = words[second - 1];
        if (words[second].gap > Gap::Blanks || !first.isLettersOnly || !words[second].isLettersOnly ||
            !isSameWord(text.textOf(first), text.textOf(words[second])))
            continue;
        findings.push_back(findingBetween(
            kind(), first, words[second],
            QCoreApplication::translate("StyleRule", "Repeated word: %1").arg(text.textOf(first))));
        // The second of a pair is not the first of another.
        ++second;
    }
}

QString LongSentenceRule::id() const
{
    return u"long-sentence"_s;
}

void LongSentenceRule::inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const
{
    for (const Sentence& sentence : text.sentences()) {
        if (sentence.words <= longestSentence)
            continue;
        const QString message =
            QCoreApplication::translate("StyleRule", "Long sentence (%1 words). Consider breaking it up.");
        findings.push_back({sentence.start, sentence.length, kind(), message.arg(sentence.words), {}});
    }
}

} // namespace tw::app::style
