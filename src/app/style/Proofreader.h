#pragma once

#include "app/style/StyleRule.h"

#include <QSet>

#include <span>

namespace tw::app::style {

/** All seven rules, in the order of their ids. They live as long as the process. */
[[nodiscard]] std::span<const StyleRule* const> styleRules();

/** Runs the rules over texts: one pass takes the text apart for all of them. May be used from any thread. */
class Proofreader
{
public:
    /** All rules but those whose ids are given; unknown ids are ignored. */
    explicit Proofreader(const QSet<QString>& disabledRules = {});

    /** By start, then by kind. */
    [[nodiscard]] std::vector<StyleFinding> findings(QStringView text) const;

private:
    std::vector<const StyleRule*> m_rules;
};

} // namespace tw::app::style
