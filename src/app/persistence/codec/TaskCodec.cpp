#include "app/persistence/codec/KindCodec.h"

#include "core/task/Task.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::task::Submission;
using core::task::Task;
using core::task::TaskPriority;

template <>
struct NamesOf<TaskPriority>
{
    static constexpr auto name = &core::task::taskPriorityName;
    static constexpr auto fromName = &core::task::taskPriorityFromName;
};

template <>
struct RecordOf<Submission>
{
    static constexpr auto entries = std::tuple(
        always<Data<&Submission::recipient>>("recipient"_L1), always<Data<&Submission::kind>>("kind"_L1),
        always<Data<&Submission::submittedOn>>("submittedOn"_L1),
        always<Data<&Submission::notes>>("notes"_L1));
};

template <>
struct RecordOf<Task>
{
    static constexpr auto entries = std::tuple(
        always<Property<&Task::title, &Task::setTitle>>("title"_L1),
        ifSet<Property<&Task::description, &Task::setDescription>>("description"_L1),
        always<Property<&Task::isDone, &Task::setDone>>("done"_L1),
        ifSet<Property<&Task::board, &Task::setBoard>>("board"_L1),
        always<Property<&Task::priority, &Task::setPriority>>("priority"_L1),
        ifSet<Property<&Task::dueDate, &Task::setDueDate>>("dueDate"_L1),
        ifSet<Property<&Task::status, &Task::setStatus>>("status"_L1),
        ifSet<Property<&Task::targetId, &Task::setTargetId>>("targetId"_L1),
        always<Property<&Task::sortIndex, &Task::setSortIndex>>("sortIndex"_L1),
        ifSet<Property<&Task::submission, &Task::setSubmission>>("submission"_L1));
};

KindCodec taskCodec()
{
    return objectKindCodec<Task, [](const core::ContentId& id) {
        return std::make_unique<Task>(id, QString());
    }>();
}

} // namespace tw::app::persistence
