#pragma once

#include "app/style/ScannedText.h"
#include "app/style/StyleFinding.h"

#include <vector>

namespace tw::app::style {

/**
 * One rule of style. Rules have no state but their tables, which are built once a process on first use; any
 * number of threads may use one rule at a time.
 */
class StyleRule
{
public:
    virtual ~StyleRule() = default;

    /** Stable and in lower case; settings name the rule by it. */
    [[nodiscard]] virtual QString id() const = 0;
    [[nodiscard]] virtual IssueKind kind() const = 0;
    /** Appends what the rule finds, in the order of the text; no two findings of one rule overlap. */
    virtual void inspect(const ScannedText& text, std::vector<StyleFinding>& findings) const = 0;

    /** What the rule finds in a text, in its order. */
    [[nodiscard]] std::vector<StyleFinding> findings(QStringView text) const;

protected:
    StyleRule() = default;
    Q_DISABLE_COPY_MOVE(StyleRule)
};

} // namespace tw::app::style
