#pragma once

#include "app/style/StyleFinding.h"

#include <QRegularExpression>

#include <vector>

namespace tw::test {

/** The rules of style as their literal expressions, slow and obvious: what the engine has to agree with. */
class StyleExpressions
{
public:
    StyleExpressions();

    /** By start, then by kind. The text must be valid UTF-16. */
    [[nodiscard]] std::vector<app::style::StyleFinding> findings(const QString& text) const;

private:
    using Findings = std::vector<app::style::StyleFinding>;

    void findAdverbs(const QString& text, Findings& findings) const;
    void findPhrases(const QString& text, Findings& findings) const;
    void findLongSentences(const QString& text, Findings& findings) const;
    void findPassives(const QString& text, Findings& findings) const;
    void findRepetitions(const QString& text, Findings& findings) const;

    QRegularExpression m_adverb;
    QRegularExpression m_cliche;
    QRegularExpression m_filler;
    QRegularExpression m_sentence;
    QRegularExpression m_passive;
    QRegularExpression m_repeated;
    QRegularExpression m_wordy;
};

} // namespace tw::test
