#include "core/map/MapCommands.h"

#include <QCoreApplication>

namespace tw::core::map {

QString SetMapTitleCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Rename map");
}

QString SetMapImageCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set map image");
}

QString SetMapGridCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit map grid");
}

QString SetMapPinsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit map pins");
}

QString SetMapRegionsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit map regions");
}

QString SetMapRoutesCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit map routes");
}

QString SetMapTokensCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit map tokens");
}

QString SetMapTravelSettingsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set map travel settings");
}

} // namespace tw::core::map
