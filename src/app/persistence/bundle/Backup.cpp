#include "app/persistence/bundle/Backup.h"

#include "app/persistence/bundle/BackupList.h"
#include "app/persistence/bundle/WorkingCopy.h"
#include "app/persistence/files/SafeWriter.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace tw::app::persistence {

using core::Failure;
using core::Result;
using namespace Qt::Literals::StringLiterals;

namespace {

/**
 * Of the project, fit for files. Two names that begin alike stay apart, as backups of the same name count
 * together; one too long for a file beside the time stamp is cut and ends in a hash of the whole.
 */
QString backupName(const QString& project)
{
    constexpr qsizetype mostBytes = 200;
    const QString whole = safeFileName(project, project.size());
    if (whole.toUtf8().size() <= mostBytes)
        return whole;
    constexpr qsizetype hashDigits = 12;
    const QByteArray hash = QCryptographicHash::hash(project.toUtf8(), QCryptographicHash::Sha256).toHex();
    return safeFileName(project) + u'-' + QString::fromLatin1(hash.first(hashDigits));
}

QString fileName(const QString& name, const QDateTime& timestamp)
{
    return u"%1-%2%3"_s.arg(name, timestamp.toString(u"yyyyMMdd-HHmmsszzz"), backupSuffix);
}

/** The names of this project's backups in the folder, the oldest first. */
QStringList backupsOf(const QString& name, const QString& folder)
{
    QStringList backups = QDir(folder).entryList(QDir::Files | QDir::Hidden);
    backups.removeIf([&](const QString& backup) {
        const std::optional<BackupName> parsed = parseBackupName(backup);
        return !parsed || parsed->project != name;
    });
    std::ranges::sort(backups);
    return backups;
}

Failure failedBackup()
{
    return {QCoreApplication::translate("Persistence", "Could not create a backup of the project.")};
}

int prune(FileSystem& fileSystem, const BackupRequest& request, const QString& newest)
{
    QStringList older = backupsOf(request.name, request.backupsFolder);
    // A clock that was set back must not cost the backup just made.
    older.removeOne(newest);
    const qsizetype surplus = older.size() - std::max<qsizetype>(0, request.keep - 1);
    int pruned = 0;
    for (qsizetype index = 0; index < surplus; ++index) {
        if (fileSystem.remove(request.backupsFolder + u'/' + older.at(index)))
            ++pruned;
    }
    return pruned;
}

} // namespace

BackupRequest backupRequest(
    const StorageEnvironment& environment, const QString& projectPath, const QString& folder,
    const QDateTime& timestamp)
{
    const QString name = backupName(
        isBundlePath(projectPath) ? QFileInfo(projectPath).completeBaseName() : QDir(projectPath).dirName());
    return {folder, backupsFolder(environment) + u'/' + name, name, timestamp};
}

Result<Backup> backupProject(const StorageEnvironment& environment, const BackupRequest& request)
{
    if (request.folder.isEmpty())
        return Failure{
            QCoreApplication::translate("Persistence", "Save the project to a folder before backing it up.")};
    const Result<QList<BundleFile>> files =
        collectBundleFiles(environment.fileSystem, request.folder, request.backupsFolder);
    return files ? backupFiles(environment, request, files.value()) : failedBackup();
}

Result<Backup> backupFiles(
    const StorageEnvironment& environment, const BackupRequest& request, const QList<BundleFile>& files)
{
    FileSystem& fileSystem = environment.fileSystem;
    const Result<QByteArray> archive = packBundle(files);
    if (!archive || !fileSystem.makeFolders(request.backupsFolder))
        return failedBackup();

    QDateTime timestamp = request.timestamp;
    while (QFileInfo::exists(request.backupsFolder + u'/' + fileName(request.name, timestamp)))
        timestamp = timestamp.addMSecs(1);
    const QString name = fileName(request.name, timestamp);
    const QString path = request.backupsFolder + u'/' + name;
    SafeWriter writer(fileSystem, environment.retryPolicy, environment.sleeper);
    if (!writer.write({path, archive.value()}) || !writer.syncFolders())
        return failedBackup();
    return Backup{path, prune(fileSystem, request, name)};
}

} // namespace tw::app::persistence
