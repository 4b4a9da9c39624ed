#pragma once

#include "core/timeline/ContinuityRule.h"
#include "desktop/shell/DeskContext.h"

#include <QDialog>

#include <optional>
#include <vector>

namespace tw::desktop::fields {
class ListEditor;
class NoteLabel;
} // namespace tw::desktop::fields

namespace tw::desktop::continuity {

class RuleForm;
struct RuleDraft;

using RuleList = std::vector<core::timeline::ContinuityRule>;

/** What keeps the rules from being stored, for the writer; empty when nothing does. */
[[nodiscard]] QString faultIn(const RuleList& rules);

/** The writer's continuity rules in a list, with a form for the current one. Changes nothing by itself. */
class RulesDialog final : public QDialog
{
    Q_OBJECT

public:
    RulesDialog(const shell::DeskContext& desk, const RuleList& rules, QWidget* parent);
    ~RulesDialog() override;

    /** What was typed for a rule to compare with is in it once it was accepted. */
    [[nodiscard]] RuleList rules() const;
    /** Refused, with a note, while a rule is not complete or compares with what its property cannot hold. */
    void accept() override;

private:
    void addRow(std::size_t rule);
    void addRule();
    void removeRow(int row);
    void showCurrent();
    void takeForm();
    [[nodiscard]] std::size_t ruleOfRow(int row) const;
    /** What was typed for a date stays with its rule until it reads. */
    void keepUnreadDate();
    /** Stores what was typed as the values of the rules; false, with the form at the first that cannot be. */
    [[nodiscard]] bool storeValues();

    shell::DeskContext m_desk;
    /** The rows of the list know their numbers here; removed ones stay. */
    std::vector<RuleDraft> m_rules;
    /** The one in the form; none while there is none. */
    std::optional<std::size_t> m_shown;
    fields::ListEditor* m_list;
    RuleForm* m_form;
    fields::NoteLabel* m_note;
};

/** Asks, and stores the answer as one step. */
void editContinuityRules(const shell::DeskContext& desk, QWidget* parent);

} // namespace tw::desktop::continuity
