#include "core/ttrpg/TtrpgCommands.h"

#include <QCoreApplication>

namespace tw::core::ttrpg {

QString SetRandomTableCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit random table");
}

QString SetStatBlockCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit stat block");
}

} // namespace tw::core::ttrpg
