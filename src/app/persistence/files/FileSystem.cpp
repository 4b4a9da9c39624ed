#include "app/persistence/files/FileSystem.h"

#include "app/persistence/files/PlatformFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

namespace tw::app::persistence {

namespace {

/** Bytes. With less, names and records of files do not fit for certain. */
constexpr qint64 leastRoom = 64 * 1024;

/** A link is written through, so that it stays a link. */
QString writtenThrough(const QString& target)
{
    const QFileInfo info(target);
    return info.isSymLink() ? info.symLinkTarget() : target;
}

} // namespace

std::optional<FileContent> DiskFileSystem::readFile(const QString& path)
{
    return platform::readFile(path);
}

std::optional<FileStamp> DiskFileSystem::stamp(const QString& path)
{
    return platform::stampOf(path);
}

std::optional<QString> DiskFileSystem::writeTemporary(
    const QString& target, const QByteArray& bytes, Durability durability)
{
    return platform::writeTemporary(writtenThrough(target), bytes, durability);
}

bool DiskFileSystem::syncFile(const QString& path)
{
    return platform::syncFile(path);
}

bool DiskFileSystem::syncFileSystem(const QString& folder)
{
    return platform::syncFileSystem(folder);
}

FileHold DiskFileSystem::hold(const QString& path)
{
    return platform::holdFile(path);
}

bool DiskFileSystem::replace(const QString& temporary, const QString& target)
{
    return platform::replaceFile(temporary, writtenThrough(target));
}

bool DiskFileSystem::remove(const QString& path)
{
    return QFile::remove(path) || !QFileInfo::exists(path);
}

bool DiskFileSystem::makeFolders(const QString& path)
{
    return QDir().mkpath(path);
}

bool DiskFileSystem::syncFolder(const QString& path)
{
    return platform::syncFolder(path);
}

WriteObstacle DiskFileSystem::obstacleAt(const QString& folder, qint64 bytes)
{
    if (folder.isEmpty())
        return WriteObstacle::None;
    // Absolute, so that the way up ends at a root.
    QFileInfo place(QFileInfo(folder).absoluteFilePath());
    while (!place.isDir() && !place.isRoot())
        place.setFile(place.path());
    const QStorageInfo medium(place.filePath());
    if (medium.isReadOnly())
        return WriteObstacle::NotWritable;
    // First: a full disk often says no to more than room.
    if (medium.isValid() && medium.bytesAvailable() < bytes + leastRoom)
        return WriteObstacle::DiskFull;
    return place.isWritable() ? WriteObstacle::None : WriteObstacle::NotWritable;
}

} // namespace tw::app::persistence
