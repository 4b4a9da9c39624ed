#include "core/research/ResearchCommands.h"

#include <QCoreApplication>

namespace tw::core::research {

QString SetSourceCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit source");
}

QString SetCommentCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit comment");
}

QString SetCommentTargetCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Move comment");
}

} // namespace tw::core::research
