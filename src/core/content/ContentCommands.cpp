#include "core/content/ContentCommands.h"

#include <QCoreApplication>

namespace tw::core::content {

QString SetObjectTagsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set tags");
}

QString SetObjectLockCommand::text() const
{
    return newValue() ? QCoreApplication::translate("UndoCommand", "Lock")
                      : QCoreApplication::translate("UndoCommand", "Unlock");
}

QString SetObjectVisibilityCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set visibility");
}

QString SetAiExclusionCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set AI exclusion");
}

QString SetAudiencesCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit audiences");
}

QString SetDefaultAudiencesCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set the default audience");
}

AddObjectCommand::AddObjectCommand(project::Project& project, std::unique_ptr<ContentObject> object)
    : m_project(project)
    , m_id(object ? object->id() : ContentId())
    , m_object(std::move(object))
{}

AddObjectCommand::~AddObjectCommand() = default;

void AddObjectCommand::redo()
{
    m_applied = m_object && !m_project.contains(m_id);
    if (m_applied)
        m_project.add(std::move(m_object));
}

void AddObjectCommand::undo()
{
    if (m_applied)
        m_object = m_project.take(m_id);
    m_applied = false;
}

QString AddObjectCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Add object");
}

RemoveObjectCommand::RemoveObjectCommand(project::Project& project, ContentId id)
    : m_project(project)
    , m_id(id)
{}

RemoveObjectCommand::~RemoveObjectCommand() = default;

void RemoveObjectCommand::redo()
{
    m_object = m_project.take(m_id);
}

void RemoveObjectCommand::undo()
{
    if (m_object)
        m_project.insert(std::move(m_object));
}

QString RemoveObjectCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Remove object");
}

SetPinnedCommand::SetPinnedCommand(project::Project& project, ContentId id, bool pinned)
    : m_project(project)
    , m_id(id)
    , m_pinned(pinned)
{}

void SetPinnedCommand::redo()
{
    m_wasPinned = m_project.isPinned(m_id);
    m_project.setPinned(m_id, m_pinned);
    m_project.touchSettings();
}

void SetPinnedCommand::undo()
{
    m_project.setPinned(m_id, m_wasPinned);
    m_project.touchSettings();
}

QString SetPinnedCommand::text() const
{
    return m_pinned ? QCoreApplication::translate("UndoCommand", "Pin")
                    : QCoreApplication::translate("UndoCommand", "Unpin");
}

} // namespace tw::core::content
