#pragma once

#include "desktop/codex/EntitySection.h"

namespace tw::desktop::fields {
class NoteLabel;
class StoryDateEdit;
} // namespace tw::desktop::fields

namespace tw::desktop::codex {

/** When the entity came into the world and left it. */
class LifespanSection final : public EntitySection
{
    Q_OBJECT

public:
    LifespanSection(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent);

    void showEntity(const core::entity::Entity& entity) override;
    void commit() override;
    void setReadOnly(bool readOnly) override;

    [[nodiscard]] fields::StoryDateEdit& birth() { return *m_birth; }
    [[nodiscard]] fields::StoryDateEdit& death() { return *m_death; }

private:
    void store();

    fields::StoryDateEdit* m_birth;
    fields::StoryDateEdit* m_death;
    fields::NoteLabel* m_note;
};

} // namespace tw::desktop::codex
