#pragma once

#include "app/persistence/DiskState.h"
#include "app/persistence/StorageEnvironment.h"
#include "app/persistence/codec/ProjectWriter.h"

namespace tw::app::persistence {

/** How much of a merged project is on disk. */
enum class MergeWritten
{
    Completely,
    NotAtAll, ///< The files are as they were.
    Partly,   ///< Some are merged already and could not be put back.
};

/**
 * Turns the files of a project on disk into those of a merged one: writes what differs, then removes what is
 * gone. `seen` says what is known to be on disk, `onDisk` the contents that belong to it; nothing else is
 * ever overwritten, so an edit that came in the meantime ends the attempt. After a failure what was written
 * already is put back. `seen` is kept up to date throughout. For the holder of the project's lock.
 */
[[nodiscard]] MergeWritten writeMergedProject(
    const StorageEnvironment& environment, const QString& folder, const ProjectFileMap& onDisk,
    const ProjectFileMap& merged, DiskState& seen);

} // namespace tw::app::persistence
