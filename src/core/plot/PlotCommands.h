#pragma once

#include "core/project/Project.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::plot {

class SetPlotThreadsCommand final
    : public undo::SetFieldCommand<&project::Project::plotThreads, &project::Project::setPlotThreads>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetBeatSheetCommand final
    : public undo::SetFieldCommand<&project::Project::beatSheet, &project::Project::setBeatSheet>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetObjectPlotThreadsCommand final
    : public undo::SetFieldCommand<
          &content::ContentObject::plotThreadIds, &content::ContentObject::setPlotThreadIds>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

} // namespace tw::core::plot
