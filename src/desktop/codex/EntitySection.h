#pragma once

#include "core/entity/Entity.h"
#include "core/project/ProjectChanges.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

namespace tw::desktop::codex {

/**
 * One part of an entity's page. Looks its entity up by id whenever it needs it and touches only what differs
 * from what it shows, so that nothing moves under the writer's hands.
 */
class EntitySection : public QWidget
{
    Q_OBJECT

public:
    EntitySection(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent);

    /** Shows the entity as it is now. */
    virtual void showEntity(const core::entity::Entity& entity) = 0;
    /** Takes up what moved elsewhere in the project. The entity is there. */
    virtual void follow(const core::project::ProjectChanges& changes);
    /** Brings typing that is still held into the project. */
    virtual void commit();
    virtual void setReadOnly(bool readOnly);

signals:
    /** The writer is typing what is not in the project yet. */
    void typed();

protected:
    [[nodiscard]] const shell::DeskContext& desk() const { return m_desk; }
    [[nodiscard]] const core::ContentId& entityId() const { return m_entityId; }
    /** None when it was removed. */
    [[nodiscard]] const core::entity::Entity* entity() const;
    /** None when it was removed or is locked. */
    [[nodiscard]] core::entity::Entity* entityForCommands() const;

private:
    shell::DeskContext m_desk;
    core::ContentId m_entityId;
};

} // namespace tw::desktop::codex
