#include "core/writing/WritingCommands.h"

#include <QCoreApplication>

namespace tw::core::writing {

QString SetWritingGoalCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set writing goal");
}

QString SetProofreadingCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set proofreading");
}

} // namespace tw::core::writing
