#include "app/mcp/core/ProjectBackup.h"

#include "app/workspace/Workspace.h"

#include <QDateTime>

#include <chrono>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

core::Result<persistence::Backup> backUpNow(workspace::Workspace& workspace)
{
    if (!workspace.hasPath())
        return core::Failure{u"The project has no folder yet, so it cannot be backed up."_s};
    // A backup holds what was written last, not what is in memory.
    if (workspace.isModified()) {
        if (const auto saved = workspace.save(); !saved)
            return core::Failure{saved.message()};
    }
    const std::chrono::nanoseconds now(workspace.environment().clock());
    return workspace.backup(
        QDateTime::fromMSecsSinceEpoch(std::chrono::duration_cast<std::chrono::milliseconds>(now).count()));
}

} // namespace tw::app::mcp
