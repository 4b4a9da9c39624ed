#pragma once

#include "core/timeline/ContinuityRule.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

class QComboBox;
class QLineEdit;

namespace tw::desktop::fields {
class EntityChoiceModel;
class NoteLabel;
class StoryDateEdit;
} // namespace tw::desktop::fields

namespace tw::desktop::continuity {

/** The fields of one continuity rule: about whom, which property, how it compares with what, and when. */
class RuleForm final : public QWidget
{
    Q_OBJECT

public:
    RuleForm(const shell::DeskContext& desk, QWidget* parent);

    /** Emits nothing. */
    void setRule(const core::timeline::ContinuityRule& rule);
    [[nodiscard]] const core::timeline::ContinuityRule& rule() const { return m_rule; }
    void focusName();
    /** Takes what was typed as if the field had been left; false while a date does not read. */
    [[nodiscard]] bool commit();

signals:
    /** The writer changed the rule. */
    void edited();

private:
    void connectFields();
    void takeEntity();
    void takeField();
    void fillFields();
    void showValueState();

    shell::DeskContext m_desk;
    core::timeline::ContinuityRule m_rule;
    fields::EntityChoiceModel* m_choices;
    QLineEdit* m_name;
    QLineEdit* m_entity;
    /** What the field held when the entity was looked up last: an entity that is gone stays in the rule. */
    QString m_shownEntity;
    fields::NoteLabel* m_entityNote;
    QComboBox* m_field;
    QComboBox* m_comparison;
    QLineEdit* m_value;
    fields::StoryDateEdit* m_date;
};

} // namespace tw::desktop::continuity
