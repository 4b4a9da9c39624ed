#pragma once

#include "core/project/Project.h"
#include "core/project/SiblingOrder.h"
#include "core/task/Task.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::task {

class SetTaskTitleCommand final : public undo::SetFieldCommand<&Task::title, &Task::setTitle>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetTaskDescriptionCommand final
    : public undo::SetFieldCommand<&Task::description, &Task::setDescription>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** The label goes by the value being set. */
class SetTaskDoneCommand final : public undo::SetFieldCommand<&Task::isDone, &Task::setDone>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetTaskDueDateCommand final : public undo::SetFieldCommand<&Task::dueDate, &Task::setDueDate>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetTaskPriorityCommand final : public undo::SetFieldCommand<&Task::priority, &Task::setPriority>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetTaskStatusCommand final : public undo::SetFieldCommand<&Task::status, &Task::setStatus>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetTaskBoardCommand final : public undo::SetFieldCommand<&Task::board, &Task::setBoard>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetTaskSubmissionCommand final : public undo::SetFieldCommand<&Task::submission, &Task::setSubmission>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetTaskTargetCommand final : public undo::SetFieldCommand<&Task::targetId, &Task::setTargetId>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** A column of a board: the tasks there are ordered among themselves. */
struct TaskColumn
{
    QString board;
    QString status;

    friend bool operator==(const TaskColumn&, const TaskColumn&) = default;
};

/** The tasks of a column by sort index, then id. */
[[nodiscard]] std::vector<ContentId> tasksInColumn(const project::Project& project, const TaskColumn& column);

/**
 * Moves a task to a place in a column, clamped to the number of tasks there, and renumbers the columns it
 * touches 0, 1, 2, ... Does nothing when the task is gone.
 */
class MoveTaskCommand final : public undo::Command
{
public:
    MoveTaskCommand(project::Project& project, ContentId taskId, TaskColumn column, qint32 index);

    void redo() override;
    void undo() override;
    [[nodiscard]] QString text() const override;

private:
    project::Project& m_project;
    ContentId m_taskId;
    TaskColumn m_newColumn;
    qint32 m_index;
    bool m_applied = false;
    TaskColumn m_oldColumn;
    project::SiblingOrder<Task> m_order;
};

} // namespace tw::core::task
