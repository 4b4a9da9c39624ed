#pragma once

#include "core/entity/Entity.h"
#include "core/project/Project.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::entity {

class SetEntityNameCommand final : public undo::SetFieldCommand<&Entity::name, &Entity::setName>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetEntityCategoryCommand final
    : public undo::SetFieldCommand<&Entity::categoryId, &Entity::setCategoryId>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetEntityAliasesCommand final : public undo::SetFieldCommand<&Entity::aliases, &Entity::setAliases>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetEntityGalleryCommand final : public undo::SetFieldCommand<&Entity::gallery, &Entity::setGallery>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** Birth and death together. */
class SetEntityLifespanCommand final : public undo::SetFieldCommand<&Entity::lifespan, &Entity::setLifespan>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetEntityOwnFieldsCommand final
    : public undo::SetFieldCommand<&Entity::ownFields, &Entity::setOwnFields>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetEntityTimedValuesCommand final
    : public undo::SetFieldCommand<&Entity::timedValues, &Entity::setTimedValues>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** Of the whole project. */
class SetEntityTemplatesCommand final
    : public undo::SetFieldCommand<&project::Project::entityTemplates, &project::Project::setEntityTemplates>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** Stores the value of one field, or makes it unset, which differs from empty. */
class SetFieldValueCommand final : public undo::Command
{
public:
    SetFieldValueCommand(Entity& entity, QString key, std::optional<QString> value);

    void redo() override;
    void undo() override;
    [[nodiscard]] QString text() const override;

private:
    Entity& m_entity;
    QString m_key;
    std::optional<QString> m_newValue;
    std::optional<QString> m_oldValue;
};

} // namespace tw::core::entity
