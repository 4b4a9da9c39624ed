#pragma once

#include "app/style/StyleRule.h"

namespace tw::app::style {

/** Adverbs of manner: words of letters alone that end in -ly after at least two others. */
class AdverbRule final : public StyleRule
{
public:
    [[nodiscard]] QString id() const override;
    [[nodiscard]] IssueKind kind() const override { return IssueKind::Adverb; }
    void inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const override;
};

/** A form of "to be", at most one "not" or word in -ly, and a participle. Suggests nothing. */
class PassiveVoiceRule final : public StyleRule
{
public:
    [[nodiscard]] QString id() const override;
    [[nodiscard]] IssueKind kind() const override { return IssueKind::PassiveVoice; }
    void inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const override;
};

/** The same word twice with blanks between, ignoring case, on one line. */
class RepeatedWordRule final : public StyleRule
{
public:
    [[nodiscard]] QString id() const override;
    [[nodiscard]] IssueKind kind() const override { return IssueKind::RepeatedWord; }
    void inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const override;
};

/** Sentences of more than 40 words. */
class LongSentenceRule final : public StyleRule
{
public:
    [[nodiscard]] QString id() const override;
    [[nodiscard]] IssueKind kind() const override { return IssueKind::LongSentence; }
    void inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const override;
};

} // namespace tw::app::style
