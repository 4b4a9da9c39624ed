#include "desktop/codex/EntitySection.h"

#include "desktop/shell/ProjectSession.h"

namespace tw::desktop::codex {

using core::entity::Entity;

EntitySection::EntitySection(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_entityId(entityId)
{}

void EntitySection::follow(const core::project::ProjectChanges&) {}

void EntitySection::commit() {}

void EntitySection::setReadOnly(bool) {}

const Entity* EntitySection::entity() const
{
    return m_desk.session.project().findAs<Entity>(m_entityId);
}

Entity* EntitySection::entityForCommands() const
{
    auto* const edited = m_desk.session.projectForCommands().findAsForEdit<Entity>(m_entityId);
    return edited && !edited->isLocked() ? edited : nullptr;
}

} // namespace tw::desktop::codex
