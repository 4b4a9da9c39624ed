#include "app/style/PhraseRules.h"

#include "app/style/PhraseTrie.h"

#include <QCoreApplication>

namespace tw::app::style {

namespace {

using namespace Qt::StringLiterals;

/** Appends a finding for every phrase of the trie, with what `message` makes of the text and the alternative.
 */
template <class Message>
void reportPhrases(
    const PhraseTrie& trie, IssueKind kind, const ScannedText& text, std::vector<StyleFinding>& findings,
    const Message& message)
{
    trie.forEachMatch(text, [&](const Phrase& phrase, const Word& first, const Word& last) {
        const qsizetype length = last.end() - first.start;
        StyleFinding finding{
            first.start,
            length,
            kind,
            message(text.text().sliced(first.start, length).toString(), phrase.alternative.toString()),
            {}};
        if (!phrase.alternative.isEmpty())
            finding.suggestions.append(phrase.alternative.toString());
        findings.push_back(std::move(finding));
    });
}

} // namespace

QString ClicheRule::id() const
{
    return u"cliche"_s;
}

void ClicheRule::inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const
{
    static const PhraseTrie trie(clichePhrases());
    reportPhrases(trie, kind(), text, findings, [](const QString& matched, const QString&) {
        return QCoreApplication::translate("StyleRule", "Cliché: %1").arg(matched);
    });
}

QString CrutchWordRule::id() const
{
    return u"crutch-word"_s;
}

void CrutchWordRule::inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const
{
    static const PhraseTrie trie(fillerPhrases());
    reportPhrases(trie, kind(), text, findings, [](const QString& matched, const QString&) {
        return QCoreApplication::translate("StyleRule", "Filler word: %1").arg(matched);
    });
}

QString WordinessRule::id() const
{
    return u"wordiness"_s;
}

void WordinessRule::inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const
{
    static const PhraseTrie trie(wordyPhrases());
    reportPhrases(trie, kind(), text, findings, [](const QString& matched, const QString& alternative) {
        return QCoreApplication::translate("StyleRule", "Wordy: %1 → %2").arg(matched, alternative);
    });
}

} // namespace tw::app::style
