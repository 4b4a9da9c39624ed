#pragma once

#include "app/persistence/bundle/Backup.h"
#include "core/foundation/Result.h"

namespace tw::app::workspace {
class Workspace;
}

namespace tw::app::mcp {

/** Backs up the whole project as it stands, which is saved first when it has unsaved edits. */
[[nodiscard]] core::Result<persistence::Backup> backUpNow(workspace::Workspace& workspace);

} // namespace tw::app::mcp
