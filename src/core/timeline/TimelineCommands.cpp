#include "core/timeline/TimelineCommands.h"

#include <QCoreApplication>

namespace tw::core::timeline {

QString SetTimelineTitleCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Rename timeline");
}

QString SetTimelineEventCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit timeline event");
}

QString SetTimelineErasCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set timeline eras");
}

QString SetTimelineMarkersCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set timeline markers");
}

QString SetTimelineBookmarksCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set timeline bookmarks");
}

QString SetTimelineViewSettingsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Change timeline view");
}

QString SetTimelineViewPresetsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Update timeline view presets");
}

QString SetContinuityRulesCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set continuity rules");
}

} // namespace tw::core::timeline
