#pragma once

#include "app/style/Proofreader.h"
#include "app/style/spelling/Speller.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace tw::desktop::proofreading {

/** What can be wrong with prose: spelling, and what the rules of style are about. */
enum class ProblemKind
{
    Spelling,
    RepeatedWord,
    LongSentence,
    PassiveVoice,
    FillerWord,
    Wordiness,
    Adverb,
    Cliche,
};

/** All of them, in the order in which they are listed. */
[[nodiscard]] const std::vector<ProblemKind>& problemKinds();
/** Stable, in lower case: "spelling", or the id of the rule. */
[[nodiscard]] QString idOf(ProblemKind kind);
/** What the user calls the kind, as the title of a group. */
[[nodiscard]] QString titleOf(ProblemKind kind);

/** A place of a paragraph that something is to be said about. */
struct ProseFinding
{
    /** In UTF-16 code units of the paragraph. */
    qsizetype start = 0;
    qsizetype length = 0;
    ProblemKind kind = ProblemKind::Spelling;
    QString message;
    /** Of the rule; those for spelling are looked up when they are asked for. */
    QStringList suggestions;

    [[nodiscard]] qsizetype end() const { return start + length; }

    friend bool operator==(const ProseFinding&, const ProseFinding&) = default;
};

/** What a paragraph is checked for. Does not change; may be used from any thread. */
class ProseCheck
{
public:
    /** `rules` may have none, and so may the speller know no language. */
    ProseCheck(app::style::Proofreader rules, app::style::spelling::Speller speller);

    /** By start. Paragraphs are checked by themselves: a sentence never runs from one into the next. */
    [[nodiscard]] std::vector<ProseFinding> findings(QStringView paragraph) const;

    /**
     * What may take the place of the finding's text, with a capital letter where that had one. Slow for
     * spelling.
     */
    [[nodiscard]] QStringList suggestions(const ProseFinding& finding, QStringView paragraph) const;

private:
    app::style::Proofreader m_rules;
    app::style::spelling::Speller m_speller;
};

} // namespace tw::desktop::proofreading
