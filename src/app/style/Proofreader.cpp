#include "app/style/Proofreader.h"

#include "app/style/PhraseRules.h"
#include "app/style/WordRules.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace tw::app::style {

std::span<const StyleRule* const> styleRules()
{
    static const AdverbRule adverb;
    static const ClicheRule cliche;
    static const CrutchWordRule crutchWord;
    static const LongSentenceRule longSentence;
    static const PassiveVoiceRule passiveVoice;
    static const RepeatedWordRule repeatedWord;
    static const WordinessRule wordiness;
    static const std::array<const StyleRule*, 7> rules{
        &adverb, &cliche, &crutchWord, &longSentence, &passiveVoice, &repeatedWord, &wordiness};
    return rules;
}

Proofreader::Proofreader(const QSet<QString>& disabledRules)
{
    for (const StyleRule* rule : styleRules()) {
        if (!disabledRules.contains(rule->id()))
            m_rules.push_back(rule);
    }
}

std::vector<StyleFinding> Proofreader::findings(QStringView text) const
{
    std::vector<StyleFinding> found;
    if (m_rules.empty())
        return found;
    const ScannedText scanned(text);
    for (const StyleRule* rule : m_rules)
        rule->inspect(scanned, found);
    std::ranges::sort(
        found, {}, [](const StyleFinding& finding) { return std::tuple(finding.start, finding.kind); });
    return found;
}

} // namespace tw::app::style
