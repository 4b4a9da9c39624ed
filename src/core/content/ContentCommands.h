#pragma once

#include "core/project/Project.h"
#include "core/undo/SetFieldCommand.h"

#include <memory>

namespace tw::core::content {

class SetObjectTagsCommand final : public undo::SetFieldCommand<&ContentObject::tags, &ContentObject::setTags>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** The label goes by the value being set. */
class SetObjectLockCommand final
    : public undo::SetFieldCommand<&ContentObject::isLocked, &ContentObject::setLocked>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetObjectVisibilityCommand final
    : public undo::SetFieldCommand<&ContentObject::visibleTo, &ContentObject::setVisibleTo>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetAiExclusionCommand final
    : public undo::SetFieldCommand<&ContentObject::isAiExcluded, &ContentObject::setAiExcluded>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** The audiences defined in the project. */
class SetAudiencesCommand final
    : public undo::SetFieldCommand<&project::Project::audiences, &project::Project::setAudiences>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** What new objects receive. */
class SetDefaultAudiencesCommand final
    : public undo::SetFieldCommand<
          &project::Project::defaultAudiences, &project::Project::setDefaultAudiences>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** Owns the new object until redo() hands it to the project; undo() takes the very same object back. */
class AddObjectCommand final : public undo::Command
{
public:
    AddObjectCommand(project::Project& project, std::unique_ptr<ContentObject> object);
    ~AddObjectCommand() override;

    void redo() override;
    void undo() override;
    [[nodiscard]] QString text() const override;

private:
    project::Project& m_project;
    ContentId m_id;
    std::unique_ptr<ContentObject> m_object;
    bool m_applied = false;
};

/** Takes the object out of the project and keeps it alive for undo(). */
class RemoveObjectCommand final : public undo::Command
{
public:
    RemoveObjectCommand(project::Project& project, ContentId id);
    ~RemoveObjectCommand() override;

    void redo() override;
    void undo() override;
    [[nodiscard]] QString text() const override;

private:
    project::Project& m_project;
    ContentId m_id;
    std::unique_ptr<ContentObject> m_object;
};

/** Pins or unpins an object by its id; the object need not exist. */
class SetPinnedCommand final : public undo::Command
{
public:
    SetPinnedCommand(project::Project& project, ContentId id, bool pinned);

    void redo() override;
    void undo() override;
    [[nodiscard]] QString text() const override;

private:
    project::Project& m_project;
    ContentId m_id;
    bool m_pinned;
    bool m_wasPinned = false;
};

} // namespace tw::core::content
