#include "core/task/Task.h"

#include "core/foundation/NameTable.h"

namespace tw::core::task {

using namespace Qt::Literals::StringLiterals;

namespace {

using PriorityName = foundation::NamedValue<TaskPriority>;

constexpr std::array priorityNames{
    PriorityName{TaskPriority::Low, "low"_L1},
    PriorityName{TaskPriority::Normal, "normal"_L1},
    PriorityName{TaskPriority::High, "high"_L1},
    PriorityName{TaskPriority::Urgent, "urgent"_L1},
};

} // namespace

QLatin1String taskPriorityName(TaskPriority priority)
{
    return foundation::nameOf(priorityNames, priority);
}

std::optional<TaskPriority> taskPriorityFromName(QStringView name)
{
    return foundation::valueNamed(priorityNames, name);
}

Task::Task(ContentId id, QString title)
    : ContentObject(id, staticKind)
    , m_title(std::move(title))
{}

Task::~Task() = default;

bool operator==(const Task& left, const Task& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_title == right.m_title && left.m_description == right.m_description &&
           left.m_done == right.m_done && left.m_priority == right.m_priority &&
           left.m_sortIndex == right.m_sortIndex && left.m_board == right.m_board &&
           left.m_dueDate == right.m_dueDate && left.m_status == right.m_status &&
           left.m_targetId == right.m_targetId && left.m_submission == right.m_submission;
}

} // namespace tw::core::task
