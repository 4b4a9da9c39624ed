#include "app/persistence/bundle/BackupList.h"

#include "app/persistence/bundle/ProjectBundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <tuple>

namespace tw::app::persistence {

using core::Failure;
using core::Result;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView dateFormat = u"yyyyMMdd";
constexpr QStringView timeFormat = u"HHmmsszzz";

Failure failedPlace(const char* text, const QString& path)
{
    return {QCoreApplication::translate("Persistence", text).arg(QDir::toNativeSeparators(path))};
}

Result<void> unpackToFolder(
    const StorageEnvironment& environment, const QList<BundleFile>& files, const QString& folder)
{
    auto unpacked = unpackBundle(environment, files, folder);
    // There was nothing before, so whatever is there now is ours.
    if (!unpacked)
        QDir(folder).removeRecursively();
    return unpacked;
}

} // namespace

std::optional<BackupName> parseBackupName(QStringView fileName)
{
    if (!fileName.endsWith(backupSuffix))
        return std::nullopt;
    const QStringView stem = fileName.chopped(backupSuffix.size());
    const qsizetype stampSize = dateFormat.size() + 1 + timeFormat.size();
    if (stem.size() < stampSize + 1)
        return std::nullopt;
    const QStringView stamp = stem.last(stampSize);
    const QStringView date = stamp.first(dateFormat.size());
    const QStringView time = stamp.last(timeFormat.size());
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    const bool hasShape = stem.at(stem.size() - stampSize - 1) == u'-' &&
                          stamp.at(dateFormat.size()) == u'-' && std::ranges::all_of(date, isDigit) &&
                          std::ranges::all_of(time, isDigit);
    if (!hasShape)
        return std::nullopt;
    BackupName name{
        stem.chopped(stampSize + 1).toString(), QDate::fromString(date, dateFormat),
        QTime::fromString(time, timeFormat)};
    if (!name.date.isValid() || !name.time.isValid())
        return std::nullopt;
    return name;
}

bool isBackupPath(QStringView path)
{
    return path.endsWith(backupSuffix, Qt::CaseInsensitive);
}

QString backupsFolder(const StorageEnvironment& environment)
{
    return environment.dataFolder + u"/backups"_s;
}

std::vector<BackupFile> listBackups(const StorageEnvironment& environment)
{
    std::vector<BackupFile> backups;
    QDirIterator files(backupsFolder(environment), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        if (auto name = parseBackupName(file.fileName()))
            backups.push_back({file.absoluteFilePath(), *std::move(name), file.size()});
    }
    std::ranges::sort(backups, std::ranges::greater(), [](const BackupFile& backup) {
        return std::tuple(backup.name.date, backup.name.time, backup.path);
    });
    return backups;
}

Result<void> restoreBackup(
    const StorageEnvironment& environment, const QString& backupPath, const QString& projectPath)
{
    if (QFileInfo::exists(projectPath)) {
        return failedPlace(
            QT_TRANSLATE_NOOP(
                "Persistence",
                "There is already something at %1, and it is not replaced. Choose another name or folder."),
            projectPath);
    }
    const auto archive = readArchive(environment.fileSystem, backupPath);
    if (!archive)
        return Failure{archive.message()};
    const auto contents = readBundle(archive.value().bytes, backupPath);
    if (!contents)
        return Failure{contents.message()};
    if (!environment.fileSystem.makeFolders(QFileInfo(projectPath).path())) {
        return failedPlace(
            QT_TRANSLATE_NOOP("Persistence", "Could not create the folder: %1"),
            QFileInfo(projectPath).path());
    }
    if (!isBundlePath(projectPath))
        return unpackToFolder(environment, contents.value().files, projectPath);
    return writeArchive(environment, {projectPath, archive.value().bytes});
}

} // namespace tw::app::persistence
