#include "core/plot/PlotCommands.h"

#include <QCoreApplication>

namespace tw::core::plot {

QString SetPlotThreadsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit plot threads");
}

QString SetBeatSheetCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit beat sheet");
}

QString SetObjectPlotThreadsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Tag plot threads");
}

} // namespace tw::core::plot
