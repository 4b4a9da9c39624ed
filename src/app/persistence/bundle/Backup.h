#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "core/foundation/Result.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace tw::app::persistence {

inline constexpr qsizetype backupsKept = 15;

/** A backup to be made. */
struct BackupRequest
{
    QString folder;               ///< The project's; empty when it has none yet.
    QString backupsFolder;        ///< Made when missing. What it holds is no part of the backup.
    QString name;                 ///< The project's, fit for a file name.
    QDateTime timestamp;          ///< Local time.
    qsizetype keep = backupsKept; ///< How many to keep, the new one included.
    /** When set, what the backup holds as the project's files in place of those in the folder. */
    std::optional<ProjectFileMap> projectFiles = {};
};

struct Backup
{
    QString path;
    int pruned = 0; ///< Older backups that were removed.
};

/**
 * Writes one backup, an archive like a single-file project, and removes the oldest of the same name beyond
 * those to keep. No earlier backup is ever overwritten, and none is removed unless the new one is safe.
 * Any thread, one call at a time for a folder.
 */
[[nodiscard]] core::Result<Backup> backupProject(
    const StorageEnvironment& environment, const BackupRequest& request);

} // namespace tw::app::persistence
