#include "app/workspace/ProjectPlace.h"

#include "app/persistence/bundle/ProjectBundle.h"
#include "app/persistence/files/FolderScan.h"
#include "app/persistence/files/ProjectFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tw::app::workspace {

using core::Failure;
using core::Result;

Failure placeFailure(const char* text, const QString& path)
{
    return {QCoreApplication::translate("Workspace", text).arg(QDir::toNativeSeparators(path))};
}

bool isSingleFile(const QString& path)
{
    return persistence::isBundlePath(path) && !QFileInfo(path).isDir();
}

QString baseOfRelativePaths(const QString& place)
{
    return isSingleFile(place) ? QFileInfo(place).path() : place;
}

std::vector<core::project::LibraryMount> movedMounts(
    std::vector<core::project::LibraryMount> mounts, const QString& from, const QString& to)
{
    const QDir before(baseOfRelativePaths(from));
    const QDir after(baseOfRelativePaths(to));
    for (core::project::LibraryMount& mount : mounts) {
        if (!mount.path.isEmpty() && QDir::isRelativePath(mount.path))
            mount.path = after.relativeFilePath(QDir::cleanPath(before.absoluteFilePath(mount.path)));
    }
    return mounts;
}

bool holdsProject(const QString& folder)
{
    const QDir directory(folder);
    return directory.exists(persistence::projectFileName.toString()) ||
           directory.exists(persistence::objectsFolder.toString()) ||
           directory.exists(persistence::taxonomyFolder.toString());
}

Result<void> checkIsProject(const QString& folder)
{
    const QFileInfo info(folder);
    if (!info.exists())
        return placeFailure(QT_TRANSLATE_NOOP("Workspace", "The project could not be found: %1"), folder);
    if (!info.isDir()) {
        return placeFailure(
            QT_TRANSLATE_NOOP(
                "Workspace",
                "This is no project: %1. Choose a .vellory file, or the folder that holds project.json."),
            folder);
    }
    if (QFileInfo::exists(folder + u'/' + persistence::projectFileName.toString()))
        return {};
    if (holdsProject(folder)) {
        return placeFailure(
            QT_TRANSLATE_NOOP(
                "Workspace", "The file project.json is missing in %1. If a sync client is still at work "
                             "there, wait until it is "
                             "done; otherwise bring the file back from a backup, or put an empty one with {} "
                             "in its place."),
            folder);
    }
    return placeFailure(
        QT_TRANSLATE_NOOP(
            "Workspace", "The folder %1 holds no project. Choose the folder that holds project.json, or make "
                         "a new project."),
        folder);
}

Result<void> copyOtherFiles(const QString& from, const QString& to)
{
    for (const persistence::ScannedFile& file :
         persistence::scanFolder(from, persistence::ScannedFiles::All).files) {
        if (persistence::isProjectFile(file.relativePath))
            continue;
        const QString target = to + u'/' + file.relativePath;
        if (QFileInfo::exists(target))
            continue;
        if (!QDir().mkpath(QFileInfo(target).path()) ||
            !QFile::copy(from + u'/' + file.relativePath, target)) {
            return placeFailure(
                QT_TRANSLATE_NOOP(
                    "Workspace", "Could not copy '%1' to the new place. Free some space or choose another "
                                 "folder, then save "
                                 "again."),
                from + u'/' + file.relativePath);
        }
    }
    return {};
}

} // namespace tw::app::workspace
