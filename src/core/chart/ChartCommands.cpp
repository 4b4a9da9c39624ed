#include "core/chart/ChartCommands.h"

#include <QCoreApplication>

namespace tw::core::chart {

QString SetChartCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit chart");
}

} // namespace tw::core::chart
