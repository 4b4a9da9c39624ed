#include "app/style/StyleExpressions.h"

#include "app/style/StyleTables.h"

#include <algorithm>
#include <span>
#include <tuple>

namespace tw::test {

namespace {

using namespace Qt::StringLiterals;
using app::style::IssueKind;
using app::style::Phrase;
using app::style::StyleFinding;

QRegularExpression compiled(const QString& pattern)
{
    QRegularExpression expression(
        pattern, QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    expression.optimize();
    return expression;
}

QString joined(std::span<const QStringView> words)
{
    QStringList list;
    for (const QStringView word : words)
        list.append(QRegularExpression::escape(word));
    return list.join(u'|');
}

QRegularExpression compiledPhrases(std::span<const Phrase> phrases)
{
    std::vector<QStringView> texts;
    for (const Phrase& phrase : phrases)
        texts.push_back(phrase.text);
    return compiled(u"(?<!\\w)("_s + joined(texts) + u")(?!\\w)"_s);
}

template <class Report>
void forEachMatch(const QRegularExpression& expression, const QString& text, const Report& report)
{
    for (auto matches = expression.globalMatch(text); matches.hasNext();)
        report(matches.next());
}

StyleFinding findingOf(const QRegularExpressionMatch& match, IssueKind kind, const QString& message)
{
    return {match.capturedStart(), match.capturedLength(), kind, message, {}};
}

QString alternativeOf(std::span<const Phrase> phrases, const QString& matched)
{
    const auto phrase = std::ranges::find(
        phrases, matched.toCaseFolded(), [](const Phrase& candidate) { return candidate.text.toString(); });
    return phrase->alternative.toString();
}

} // namespace

StyleExpressions::StyleExpressions()
    : m_adverb(compiled(uR"(\b\p{L}{2,}ly\b)"_s))
    , m_cliche(compiledPhrases(app::style::clichePhrases()))
    , m_filler(compiledPhrases(app::style::fillerPhrases()))
    , m_sentence(compiled(uR"([^.!?]+[.!?]*)"_s))
    , m_passive(compiled(
          uR"(\b(?:)"_s + joined(app::style::auxiliaryVerbs()) +
          uR"()\b(?:\s+(?:not|\w+ly))?\s+((?:\w{2,}ed|)"_s + joined(app::style::irregularParticiples()) +
          uR"()\b))"_s))
    , m_repeated(compiled(uR"(\b(\p{L}+)[ \t]+\1\b)"_s))
    , m_wordy(compiledPhrases(app::style::wordyPhrases()))
{}

std::vector<StyleFinding> StyleExpressions::findings(const QString& text) const
{
    Findings found;
    findAdverbs(text, found);
    findPhrases(text, found);
    findLongSentences(text, found);
    findPassives(text, found);
    findRepetitions(text, found);
    std::ranges::stable_sort(
        found, {}, [](const StyleFinding& finding) { return std::tuple(finding.start, finding.kind); });
    return found;
}

void StyleExpressions::findAdverbs(const QString& text, Findings& findings) const
{
    forEachMatch(m_adverb, text, [&](const QRegularExpressionMatch& match) {
        const QString lower = match.captured().toLower();
        if (std::ranges::find(app::style::adverbExceptions(), lower) != app::style::adverbExceptions().end())
            return;
        findings.push_back(findingOf(
            match, IssueKind::Adverb, u"Adverb: "_s + match.captured() + u". Consider a stronger verb."_s));
    });
}

void StyleExpressions::findPhrases(const QString& text, Findings& findings) const
{
    forEachMatch(m_cliche, text, [&](const QRegularExpressionMatch& match) {
        findings.push_back(findingOf(match, IssueKind::Cliche, u"Cliché: "_s + match.captured()));
        const QString alternative = alternativeOf(app::style::clichePhrases(), match.captured());
        if (!alternative.isEmpty())
            findings.back().suggestions.append(alternative);
    });
    forEachMatch(m_filler, text, [&](const QRegularExpressionMatch& match) {
        findings.push_back(findingOf(match, IssueKind::FillerWord, u"Filler word: "_s + match.captured()));
    });
    forEachMatch(m_wordy, text, [&](const QRegularExpressionMatch& match) {
        const QString alternative = alternativeOf(app::style::wordyPhrases(), match.captured());
        findings.push_back(
            findingOf(match, IssueKind::Wordiness, u"Wordy: "_s + match.captured() + u" → "_s + alternative));
        findings.back().suggestions.append(alternative);
    });
}

void StyleExpressions::findLongSentences(const QString& text, Findings& findings) const
{
    static const QRegularExpression word = compiled(uR"(\S+)"_s);
    forEachMatch(m_sentence, text, [&](const QRegularExpressionMatch& match) {
        qsizetype words = 0;
        qsizetype first = 0;
        qsizetype end = 0;
        forEachMatch(word, match.captured(), [&](const QRegularExpressionMatch& run) {
            if (words++ == 0)
                first = run.capturedStart();
            end = run.capturedEnd();
        });
        if (words <= 40)
            return;
        findings.push_back(
            {match.capturedStart() + first,
             end - first,
             IssueKind::LongSentence,
             u"Long sentence ("_s + QString::number(words) + u" words). Consider breaking it up."_s,
             {}});
    });
}

void StyleExpressions::findPassives(const QString& text, Findings& findings) const
{
    forEachMatch(m_passive, text, [&](const QRegularExpressionMatch& match) {
        findings.push_back(
            findingOf(match, IssueKind::PassiveVoice, u"Passive voice: "_s + match.captured()));
    });
}

void StyleExpressions::findRepetitions(const QString& text, Findings& findings) const
{
    forEachMatch(m_repeated, text, [&](const QRegularExpressionMatch& match) {
        findings.push_back(
            findingOf(match, IssueKind::RepeatedWord, u"Repeated word: "_s + match.captured(1)));
    });
}

} // namespace tw::test
