#include "desktop/proofreading/ProseCheck.h"

#include <QCoreApplication>

#include <algorithm>

namespace tw::desktop::proofreading {

using namespace Qt::Literals::StringLiterals;
using app::style::IssueKind;

namespace {

ProblemKind kindOf(IssueKind kind)
{
    switch (kind) {
    case IssueKind::LongSentence:
        return ProblemKind::LongSentence;
    case IssueKind::PassiveVoice:
        return ProblemKind::PassiveVoice;
    case IssueKind::FillerWord:
        return ProblemKind::FillerWord;
    case IssueKind::RepeatedWord:
        return ProblemKind::RepeatedWord;
    case IssueKind::Wordiness:
        return ProblemKind::Wordiness;
    case IssueKind::Adverb:
        return ProblemKind::Adverb;
    case IssueKind::Cliche:
        break;
    }
    return ProblemKind::Cliche;
}

/** The replacement with a capital first letter where the text has one. */
QString withCapitalOf(QStringView text, const QString& replacement)
{
    if (text.isEmpty() || replacement.isEmpty() || !text.front().isUpper())
        return replacement;
    return replacement.front().toUpper() + replacement.sliced(1);
}

} // namespace

const std::vector<ProblemKind>& problemKinds()
{
    static const std::vector<ProblemKind> kinds{ProblemKind::Spelling,     ProblemKind::RepeatedWord,
                                                ProblemKind::LongSentence, ProblemKind::PassiveVoice,
                                                ProblemKind::FillerWord,   ProblemKind::Wordiness,
                                                ProblemKind::Adverb,       ProblemKind::Cliche};
    return kinds;
}

QString idOf(ProblemKind kind)
{
    if (kind == ProblemKind::Spelling)
        return u"spelling"_s;
    const auto rules = app::style::styleRules();
    const auto rule = std::ranges::find(rules, kind, [](const auto* each) { return kindOf(each->kind()); });
    return (*rule)->id();
}

QString titleOf(ProblemKind kind)
{
    switch (kind) {
    case ProblemKind::Spelling:
        return QCoreApplication::translate("ProseProblem", "Spelling");
    case ProblemKind::RepeatedWord:
        return QCoreApplication::translate("ProseProblem", "Repeated word");
    case ProblemKind::LongSentence:
        return QCoreApplication::translate("ProseProblem", "Long sentence");
    case ProblemKind::PassiveVoice:
        return QCoreApplication::translate("ProseProblem", "Passive voice");
    case ProblemKind::FillerWord:
        return QCoreApplication::translate("ProseProblem", "Filler");
    case ProblemKind::Wordiness:
        return QCoreApplication::translate("ProseProblem", "Wordy phrases");
    case ProblemKind::Adverb:
        return QCoreApplication::translate("ProseProblem", "Adverb");
    case ProblemKind::Cliche:
        break;
    }
    return QCoreApplication::translate("ProseProblem", "Cliché");
}

ProseCheck::ProseCheck(app::style::Proofreader rules, app::style::spelling::Speller speller)
    : m_rules(std::move(rules))
    , m_speller(std::move(speller))
{}

std::vector<ProseFinding> ProseCheck::findings(QStringView paragraph) const
{
    std::vector<ProseFinding> found;
    for (const auto& [start, length] : m_speller.misspellings(paragraph)) {
        const QStringView word = paragraph.sliced(start, length);
        found.push_back(
            {start,
             length,
             ProblemKind::Spelling,
             QCoreApplication::translate("ProseProblem", "Unknown word: %1").arg(word),
             {}});
    }
    for (app::style::StyleFinding& finding : m_rules.findings(paragraph)) {
        found.push_back(
            {static_cast<qsizetype>(finding.start), static_cast<qsizetype>(finding.length),
             kindOf(finding.kind), std::move(finding.message), std::move(finding.suggestions)});
    }
    std::ranges::stable_sort(found, {}, &ProseFinding::start);
    return found;
}

QStringList ProseCheck::suggestions(const ProseFinding& finding, QStringView paragraph) const
{
    const QStringView text = paragraph.sliced(finding.start, finding.length);
    if (finding.kind == ProblemKind::Spelling)
        return m_speller.suggestions(text);
    if (finding.kind == ProblemKind::RepeatedWord) {
        const auto space = std::ranges::find_if(text, [](QChar unit) { return unit.isSpace(); });
        return {text.first(space - text.begin()).toString()};
    }
    QStringList fitting;
    for (const QString& suggestion : finding.suggestions)
        fitting.append(withCapitalOf(text, suggestion));
    return fitting;
}

} // namespace tw::desktop::proofreading
