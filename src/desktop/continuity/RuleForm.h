#pragma once

#include "core/taxonomy/Field.h"
#include "core/timeline/ContinuityRule.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

#include <optional>
#include <vector>

class QComboBox;
class QLineEdit;
class QStringListModel;

namespace tw::desktop::fields {
class EntityChoiceModel;
struct EntityChoice;
class NoteLabel;
class StoryDateEdit;
} // namespace tw::desktop::fields

namespace tw::desktop::continuity {

/** A rule that the writer is at work on. */
struct RuleDraft
{
    core::timeline::ContinuityRule rule;
    /** What was typed for it to compare with, in words; none while what the rule holds stands. */
    std::optional<QString> typedValue = {};
    /** What was typed for its date and does not read as one. */
    std::optional<QString> typedDate = {};
};

/** The fields of one continuity rule: about whom, which property, how it compares with what, and when. */
class RuleForm final : public QWidget
{
    Q_OBJECT

public:
    RuleForm(const shell::DeskContext& desk, QWidget* parent);
    ~RuleForm() override;

    /** Emits nothing. */
    void setDraft(const RuleDraft& draft);
    [[nodiscard]] const RuleDraft& draft() const { return m_draft; }
    void focusName();
    void focusValue();
    void focusDate();
    /** What stands in the field of the date and does not read as one. */
    [[nodiscard]] std::optional<QString> unreadDate() const;
    /** Takes what was typed as if the field had been left; false while a date does not read. */
    [[nodiscard]] bool commit();

signals:
    /** The writer changed the rule. */
    void edited();

private:
    void connectFields();
    void takeEntity();
    void takeField();
    void takeComparison();
    void takeValue(const QString& words);
    /** What stands in the field is from now on read anew: it means something else than it did. */
    void rereadValue();
    void fillChoices();
    [[nodiscard]] QString entityText(const core::ContentId& id) const;
    void fillFields();
    void showValueState();
    void showValueFault();

    shell::DeskContext m_desk;
    RuleDraft m_draft;
    /** What the rule looked at when its value was last shown or typed. */
    core::taxonomy::Field m_shownField;
    /** The project's own entities; the list holds those of its libraries as well. */
    std::vector<fields::EntityChoice> m_ownChoices;
    fields::EntityChoiceModel* m_choices;
    QStringListModel* m_valueChoices;
    QLineEdit* m_name;
    QLineEdit* m_entity;
    /** What the field held when the entity was looked up last: an entity that is gone stays in the rule. */
    QString m_shownEntity;
    fields::NoteLabel* m_entityNote;
    QComboBox* m_field;
    QComboBox* m_comparison;
    QLineEdit* m_value;
    fields::NoteLabel* m_valueNote;
    fields::StoryDateEdit* m_date;
};

} // namespace tw::desktop::continuity
