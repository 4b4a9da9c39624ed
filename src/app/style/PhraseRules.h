#pragma once

#include "app/style/StyleRule.h"

namespace tw::app::style {

/** Phrases worn out by use, some with plainer words. */
class ClicheRule final : public StyleRule
{
public:
    [[nodiscard]] QString id() const override;
    [[nodiscard]] IssueKind kind() const override { return IssueKind::Cliche; }
    void inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const override;
};

/** Words that say nothing. Suggests nothing. */
class CrutchWordRule final : public StyleRule
{
public:
    [[nodiscard]] QString id() const override;
    [[nodiscard]] IssueKind kind() const override { return IssueKind::FillerWord; }
    void inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const override;
};

/** Phrases that one or two words say as well; suggests them. */
class WordinessRule final : public StyleRule
{
public:
    [[nodiscard]] QString id() const override;
    [[nodiscard]] IssueKind kind() const override { return IssueKind::Wordiness; }
    void inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const override;
};

} // namespace tw::app::style
