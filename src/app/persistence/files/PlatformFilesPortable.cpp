#include "app/persistence/files/PlatformFiles.h"

#ifndef Q_OS_UNIX

#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>
#include <QTimeZone>

#include <filesystem>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence::platform {

namespace {

FileStamp stampFrom(const QFileInfo& info)
{
    constexpr qint64 nanosecondsPerMillisecond = 1'000'000;
    const qint64 changed = info.fileTime(QFile::FileMetadataChangeTime).toMSecsSinceEpoch();
    return {
        info.size(),
        info.fileTime(QFile::FileModificationTime).toMSecsSinceEpoch() * nanosecondsPerMillisecond,
        changed * nanosecondsPerMillisecond, 0, 0};
}

} // namespace

std::optional<FileContent> readFile(const QString& path)
{
    QFile file(path);
    const QFileInfo info(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    FileContent content{{}, stampFrom(info)};
    content.bytes = file.readAll();
    return file.error() == QFile::NoError ? std::optional(content) : std::nullopt;
}

std::optional<FileStamp> stampOf(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() ? std::optional(stampFrom(info)) : std::nullopt;
}

// Qt can have bytes reach the medium only while it writes them, so every write does.
std::optional<QString> writeTemporary(const QString& target, const QByteArray& bytes, Durability)
{
    const QFileInfo existing(target);
    if (existing.exists() && (!existing.isFile() || !existing.isWritable()))
        return std::nullopt;
    // The scratch file only finds a free name; the save file is what has the bytes reach the medium.
    QTemporaryFile scratch(existing.path() + u'/' + temporaryPrefix + u"XXXXXX"_s);
    if (!scratch.open())
        return std::nullopt;
    const QString path = scratch.fileName();
    scratch.setAutoRemove(false);
    scratch.close();
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return path;
    QFile::remove(path);
    return std::nullopt;
}

bool syncFile(const QString& path)
{
    return QFileInfo(path).isFile();
}

bool syncFileSystem(const QString&)
{
    return false;
}

FileHold holdFile(const QString&)
{
    return nullptr;
}

bool replaceFile(const QString& from, const QString& to)
{
    std::error_code failure;
    std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), failure);
    return !failure;
}

bool syncFolder(const QString& path)
{
    return QFileInfo(path).isDir();
}

FolderScan walkFolder(const QString& root, const NameFilter& wants, Stamps, const FolderScan&)
{
    FolderScan scan;
    const QDir folder(root);
    QDirIterator entries(root, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        entries.next();
        const QFileInfo info = entries.fileInfo();
        const QString path = folder.relativeFilePath(info.filePath());
        const QString inside = path.chopped(info.fileName().size());
        if (inside.startsWith(u'.') || inside.contains(u"/."_s))
            continue;
        if (info.fileName().startsWith(temporaryPrefix))
            scan.leftovers.append(path);
        if (info.fileName().startsWith(u'.') || !wants(info.fileName()))
            continue;
        const Linkage linkage = info.isSymLink() ? Linkage::SymbolicLink : Linkage::Direct;
        scan.files.push_back({path, stampFrom(info), 0, -1, linkage});
    }
    if (!folder.exists())
        scan.unreadableFolders.append(QString());
    return scan;
}

} // namespace tw::app::persistence::platform

#endif
