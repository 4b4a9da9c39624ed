#pragma once

#include "app/persistence/DiskState.h"
#include "app/persistence/bundle/ProjectBundle.h"
#include "app/persistence/bundle/SingleFile.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "core/foundation/Result.h"

#include <optional>

namespace tw::app::workspace {

class Workspace;

/** The archive of a single-file project that others replaced. */
struct TheirArchive
{
    QList<persistence::BundleFile> files;
    persistence::ArchiveState state; ///< To know it again; without an index.
};

/** A project as others left it on disk. */
struct TheirVersion
{
    /** The project's files: of a changed archive those in it, otherwise those in the folder. */
    persistence::ProjectFileMap files;
    /** What the folder looked like when it was read. */
    persistence::DiskState seen;
    std::optional<TheirArchive> archive;
    /** Media added, replaced or removed; of an archive any file that is not one of the project's own. */
    qsizetype changedMedia = 0;
};

/**
 * Reads what others changed since the project was last read or saved. The failure names what cannot be read
 * right now; nothing is changed then.
 */
[[nodiscard]] core::Result<TheirVersion> readTheirVersion(Workspace& workspace);

/** The project's files as they were last read or saved. */
[[nodiscard]] persistence::ProjectFileMap projectFilesOf(const persistence::DiskState& state);

/** The failure of files on disk that are in no state to be reviewed; the detail says which. */
[[nodiscard]] core::Failure unreadableOnDisk(const QString& detail);

} // namespace tw::app::workspace
