#include "core/task/TaskCommands.h"

#include <QCoreApplication>

#include <algorithm>

namespace tw::core::task {

QString SetTaskTitleCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Rename task");
}

QString SetTaskDescriptionCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit task details");
}

QString SetTaskDoneCommand::text() const
{
    return newValue() ? QCoreApplication::translate("UndoCommand", "Complete task")
                      : QCoreApplication::translate("UndoCommand", "Reopen task");
}

QString SetTaskDueDateCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Change task due date");
}

QString SetTaskPriorityCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Change task priority");
}

QString SetTaskStatusCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Change task status");
}

QString SetTaskBoardCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Move task to board");
}

QString SetTaskSubmissionCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Change submission details");
}

QString SetTaskTargetCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Link task");
}

std::vector<ContentId> tasksInColumn(const project::Project& project, const TaskColumn& column)
{
    std::vector<const Task*> tasks = project::objectsOf<Task>(project);
    std::erase_if(tasks, [&column](const Task* task) {
        return task->board() != column.board || task->status() != column.status;
    });
    std::ranges::stable_sort(tasks, {}, &Task::sortIndex);
    std::vector<ContentId> ids;
    ids.reserve(tasks.size());
    for (const Task* task : tasks)
        ids.push_back(task->id());
    return ids;
}

MoveTaskCommand::MoveTaskCommand(project::Project& project, ContentId taskId, TaskColumn column, qint32 index)
    : m_project(project)
    , m_taskId(taskId)
    , m_newColumn(std::move(column))
    , m_index(index)
{}

void MoveTaskCommand::redo()
{
    auto* const task = m_project.findAsForEdit<Task>(m_taskId);
    m_applied = task != nullptr;
    if (!m_applied)
        return;
    m_oldColumn = {task->board(), task->status()};
    std::vector<ContentId> oldTasks = tasksInColumn(m_project, m_oldColumn);
    std::vector<ContentId> newTasks = tasksInColumn(m_project, m_newColumn);
    std::erase(oldTasks, m_taskId);
    std::erase(newTasks, m_taskId);
    const auto index = std::clamp<std::ptrdiff_t>(m_index, 0, std::ssize(newTasks));
    newTasks.insert(newTasks.begin() + index, m_taskId);

    task->setBoard(m_newColumn.board);
    task->setStatus(m_newColumn.status);
    task->touch();
    m_order.number(m_project, newTasks);
    if (m_oldColumn != m_newColumn)
        m_order.number(m_project, oldTasks);
}

void MoveTaskCommand::undo()
{
    if (!m_applied)
        return;
    m_applied = false;
    if (auto* const task = m_project.findAsForEdit<Task>(m_taskId)) {
        task->setBoard(m_oldColumn.board);
        task->setStatus(m_oldColumn.status);
        task->touch();
    }
    m_order.restore(m_project);
}

QString MoveTaskCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Move task");
}

} // namespace tw::core::task
