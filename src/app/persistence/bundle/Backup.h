#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "app/persistence/bundle/ProjectBundle.h"
#include "core/foundation/Result.h"

#include <QDateTime>
#include <QString>

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
};

struct Backup
{
    QString path;
    int pruned = 0; ///< Older backups that were removed.
};

/** The request for a backup of the folder into the place where those of the project at `projectPath` go. */
[[nodiscard]] BackupRequest backupRequest(
    const StorageEnvironment& environment, const QString& projectPath, const QString& folder,
    const QDateTime& timestamp);

/**
 * Writes one backup, an archive like a single-file project, and removes the oldest of the same name beyond
 * those to keep. No earlier backup is ever overwritten, and none is removed unless the new one is safe.
 * Any thread, one call at a time for a folder.
 */
[[nodiscard]] core::Result<Backup> backupProject(
    const StorageEnvironment& environment, const BackupRequest& request);

/** The same with these files, whatever the folder holds. */
[[nodiscard]] core::Result<Backup> backupFiles(
    const StorageEnvironment& environment, const BackupRequest& request, const QList<BundleFile>& files);

} // namespace tw::app::persistence
