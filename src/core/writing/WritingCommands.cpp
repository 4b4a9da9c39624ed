#include "core/writing/WritingCommands.h"

#include <QCoreApplication>

namespace tw::core::writing {

QString SetWritingGoalCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set writing goal");
}

} // namespace tw::core::writing
