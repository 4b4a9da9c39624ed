#pragma once

#include "core/chart/Chart.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::chart {

class SetChartCommand final : public undo::SetFieldCommand<&Chart::details, &Chart::setDetails>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

} // namespace tw::core::chart
