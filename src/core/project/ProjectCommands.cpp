#include "core/project/ProjectCommands.h"

#include <QCoreApplication>

namespace tw::core::project {

QString SetProjectNameCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Rename project");
}

QString SetSavedSearchesCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Update saved searches");
}

QString SetLibraryMountsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Update mounted libraries");
}

QString SetPropertyMigrationAnswerCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Record property migration answer");
}

} // namespace tw::core::project
