#include "core/entity/EntityCommands.h"

#include <QCoreApplication>

namespace tw::core::entity {

QString SetEntityNameCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Rename entity");
}

QString SetEntityCategoryCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Move entity to category");
}

QString SetEntityAliasesCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set aliases");
}

QString SetEntityGalleryCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set entity gallery");
}

QString SetEntityLifespanCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit lifespan");
}

QString SetEntityOwnFieldsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Change entity properties");
}

QString SetEntityTimedValuesCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set state over time");
}

QString SetEntityTemplatesCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Update entity templates");
}

SetFieldValueCommand::SetFieldValueCommand(Entity& entity, QString key, std::optional<QString> value)
    : m_entity(entity)
    , m_key(std::move(key))
    , m_newValue(std::move(value))
{}

void SetFieldValueCommand::redo()
{
    m_oldValue = m_entity.value(m_key);
    m_entity.setValue(m_key, m_newValue);
    m_entity.touch();
}

void SetFieldValueCommand::undo()
{
    m_entity.setValue(m_key, m_oldValue);
    m_entity.touch();
}

QString SetFieldValueCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set field value");
}

} // namespace tw::core::entity
