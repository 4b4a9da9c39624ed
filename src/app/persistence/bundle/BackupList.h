#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "core/foundation/Result.h"

#include <QDate>
#include <QString>
#include <QStringView>
#include <QTime>

#include <optional>
#include <vector>

namespace tw::app::persistence {

inline constexpr QStringView backupSuffix = u".twbackup";

/** What the name of a backup's file says. */
struct BackupName
{
    QString project; ///< Fit for a file name.
    /** Local time, apart from each other: together they may lie in the hour that daylight saving leaves out.
     */
    QDate date;
    QTime time;
};

/** None when the name is not one that this program gives to a backup. */
[[nodiscard]] std::optional<BackupName> parseBackupName(QStringView fileName);

/** Whether the path ends as backups do, in any case. */
[[nodiscard]] bool isBackupPath(QStringView path);

/** The folder below which the backups of all projects lie, each project's in a folder of its own. */
[[nodiscard]] QString backupsFolder(const StorageEnvironment& environment);

/** A backup that lies in a project's folder. */
struct BackupFile
{
    QString path;
    BackupName name;
    qint64 size = 0; ///< In bytes.
};

/** The backups of all projects, the newest first. */
[[nodiscard]] std::vector<BackupFile> listBackups(const StorageEnvironment& environment);

/**
 * Makes a new project of a backup, or of any other archive of a project: a single file when the path ends as
 * those do, otherwise a folder. Refused, with nothing written, when something lies at the path or the archive
 * is unsound. The backup stays as it is.
 */
[[nodiscard]] core::Result<void> restoreBackup(
    const StorageEnvironment& environment, const QString& backupPath, const QString& projectPath);

} // namespace tw::app::persistence
