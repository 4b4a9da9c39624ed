#pragma once

#include "core/project/Project.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::calendar {

/** Stored instants stay as they are and read in the new calendar. */
class SetCalendarCommand final
    : public undo::SetFieldCommand<&project::Project::calendar, &project::Project::setCalendar>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetReckoningsCommand final
    : public undo::SetFieldCommand<&project::Project::reckonings, &project::Project::setReckonings>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

} // namespace tw::core::calendar
