#pragma once

#include "desktop/codex/EntitySection.h"

class QLabel;
class QLineEdit;
class QToolButton;

namespace tw::desktop::fields {
class ChipField;
}

namespace tw::desktop::codex {

/** The top of an entity's page: where it stands, its name, its other names. */
class EntityHeading final : public EntitySection
{
    Q_OBJECT

public:
    EntityHeading(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent);

    void showEntity(const core::entity::Entity& entity) override;
    void commit() override;
    void setReadOnly(bool readOnly) override;

    [[nodiscard]] QLineEdit& nameEdit() { return *m_name; }
    [[nodiscard]] fields::ChipField& aliases() { return *m_aliases; }

private:
    void makePlace();
    void makeName();
    void makeAliases();
    void showPlace(const core::entity::Entity& entity);
    void chooseCategory();
    void commitName();
    void commitAlias();
    void setAliases(const QStringList& aliases);

    QLabel* m_place;
    QToolButton* m_move;
    QLineEdit* m_name;
    fields::ChipField* m_aliases;
    /** As last shown or stored; what differs from it is the writer's. */
    QString m_shownName;
    core::ContentId m_parentEntityId;
    bool m_isReadOnly = false;
};

} // namespace tw::desktop::codex
