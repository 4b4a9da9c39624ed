#include "core/calendar/CalendarCommands.h"

#include <QCoreApplication>

namespace tw::core::calendar {

QString SetCalendarCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set calendar");
}

QString SetReckoningsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set reckonings");
}

} // namespace tw::core::calendar
