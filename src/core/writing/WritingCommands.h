#pragma once

#include "core/project/Project.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::writing {

class SetWritingGoalCommand final
    : public undo::SetFieldCommand<&project::Project::writingGoal, &project::Project::setWritingGoal>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetProofreadingCommand final
    : public undo::SetFieldCommand<&project::Project::proofreading, &project::Project::setProofreading>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

} // namespace tw::core::writing
