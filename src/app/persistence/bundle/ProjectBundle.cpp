#include "app/persistence/bundle/ProjectBundle.h"

#include "app/persistence/files/FolderScan.h"
#include "app/persistence/files/ParallelFor.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/persistence/files/SafeWriter.h"
#include "app/persistence/zip/Crc32.h"
#include "app/persistence/zip/ZipReader.h"
#include "app/persistence/zip/ZipWriter.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <vector>

namespace tw::app::persistence {

using core::Failure;
using core::Result;

namespace {

/** Files that one thread reads or checks before it asks for more. */
constexpr qsizetype filesAtOnce = 16;

/** What a record of the archive takes besides data and name, in both places. */
constexpr qsizetype recordSize = 80;

#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
constexpr ZipNames fileNames = ZipNames::CaseInsensitive;
#else
constexpr ZipNames fileNames = ZipNames::CaseSensitive;
#endif

Failure failure(const char* text, const QString& path)
{
    return {QCoreApplication::translate("Persistence", text).arg(QDir::toNativeSeparators(path))};
}

Failure invalidBundle(const QString& bundlePath)
{
    return failure(QT_TRANSLATE_NOOP("Persistence", "Not a valid Vellory project file: %1"), bundlePath);
}

Failure unreadableFile(const QString& path)
{
    return failure(QT_TRANSLATE_NOOP("Persistence", "Could not read a project file: %1"), path);
}

bool holdsProject(const QList<BundleFile>& files)
{
    return std::ranges::find(files, projectFileName, &BundleFile::path) != files.end();
}

/** The paths below the folder without those in `leftOut`, sorted; no bytes yet. */
Result<QList<BundleFile>> listFiles(const QString& folder, const QString& leftOut)
{
    const FolderScan scan = scanFolder(folder, ScannedFiles::All);
    if (!scan.isComplete())
        return unreadableFile(folder);
    // A folder that does not exist has no path here, and nothing in it.
    const QString outer = QFileInfo(folder).canonicalFilePath();
    const QString inner = leftOut.isEmpty() ? QString() : QFileInfo(leftOut).canonicalFilePath();
    const auto isLeftOut = [&](const QString& path) {
        return !inner.isEmpty() && QString(outer + u'/' + path).startsWith(inner + u'/');
    };
    QList<BundleFile> files;
    for (const ScannedFile& file : scan.files) {
        if (isLeftOut(file.relativePath))
            continue;
        if (!isSafeEntryName(file.relativePath) || file.relativePath.contains(u'\\')) {
            return failure(
                QT_TRANSLATE_NOOP(
                    "Persistence",
                    "A file has a name that cannot be kept in a project file. Rename it, then try again: %1"),
                folder + u'/' + file.relativePath);
        }
        files.append({file.relativePath, {}});
    }
    std::ranges::sort(files, {}, &BundleFile::path);
    return files;
}

} // namespace

bool isBundlePath(QStringView path)
{
    return path.endsWith(u".vellory", Qt::CaseInsensitive) ||
           path.endsWith(u".tarnwick", Qt::CaseInsensitive);
}

Result<QList<BundleFile>> collectBundleFiles(
    FileSystem& fileSystem, const QString& folder, const QString& leftOut)
{
    if (!QFileInfo(folder).isDir())
        return failure(QT_TRANSLATE_NOOP("Persistence", "The project folder does not exist: %1"), folder);
    Result<QList<BundleFile>> listed = listFiles(folder, leftOut);
    if (!listed)
        return listed;
    QList<BundleFile>& files = listed.value();
    if (!holdsProject(files))
        return failure(
            QT_TRANSLATE_NOOP("Persistence", "The folder is not an Vellory project (no project.json): %1"),
            folder);

    BundleFile* const first = files.data();
    std::vector<char> isRead(static_cast<std::size_t>(files.size()), 0);
    parallelFor(files.size(), filesAtOnce, [&](qsizetype begin, qsizetype end) {
        for (qsizetype index = begin; index < end; ++index) {
            std::optional<FileContent> content = fileSystem.readFile(folder + u'/' + first[index].path);
            if (!content)
                continue;
            first[index].bytes = std::move(content->bytes);
            isRead[static_cast<std::size_t>(index)] = 1;
        }
    });
    const auto unread = std::ranges::find(isRead, 0);
    if (unread != isRead.end())
        return unreadableFile(folder + u'/' + files.at(unread - isRead.begin()).path);
    return listed;
}

Result<QByteArray> packBundle(const QList<BundleFile>& files)
{
    std::vector<quint32> checksums(static_cast<std::size_t>(files.size()));
    parallelFor(files.size(), filesAtOnce, [&](qsizetype begin, qsizetype end) {
        for (qsizetype index = begin; index < end; ++index)
            checksums[static_cast<std::size_t>(index)] = crc32(files.at(index).bytes);
    });

    qsizetype size = recordSize;
    for (const BundleFile& file : files)
        size += recordSize + 4 * file.path.size() + file.bytes.size();
    QByteArray archive;
    archive.reserve(size);
    QBuffer buffer(&archive);
    buffer.open(QIODevice::WriteOnly);
    ZipWriter writer(buffer);
    for (qsizetype index = 0; index < files.size(); ++index) {
        const BundleFile& file = files.at(index);
        if (auto added = writer.addStored(file.path, file.bytes, checksums[static_cast<std::size_t>(index)]);
            !added)
            return Failure{added.message()};
    }
    if (auto finished = writer.finish(); !finished)
        return Failure{finished.message()};
    return archive;
}

Result<QByteArray> buildBundle(FileSystem& fileSystem, const QString& folder)
{
    const Result<QList<BundleFile>> files = collectBundleFiles(fileSystem, folder);
    return files ? packBundle(files.value()) : Failure{files.message()};
}

Result<QByteArray> writeProjectBundle(
    const StorageEnvironment& environment, const QString& folder, const QString& bundlePath)
{
    Result<QByteArray> archive = buildBundle(environment.fileSystem, folder);
    if (!archive)
        return archive;
    SafeWriter writer(environment.fileSystem, environment.retryPolicy, environment.sleeper);
    if (!writer.write({bundlePath, archive.value()}) || !writer.syncFolders()) {
        return failure(
            QT_TRANSLATE_NOOP(
                "Persistence", "Could not write the project file (it may be locked by another program -- the "
                               "desktop app, a sync client, or antivirus): %1"),
            bundlePath);
    }
    return QCryptographicHash::hash(archive.value(), QCryptographicHash::Sha256).toHex();
}

Result<QList<BundleFile>> readBundle(QByteArrayView archive, const QString& bundlePath)
{
    const Result<ZipReader> reader = ZipReader::open(archive, fileNames);
    if (!reader)
        return invalidBundle(bundlePath);
    QList<BundleFile> files;
    for (const ZipEntry& entry : reader.value().entries()) {
        QString path = entry.name;
        path.replace(u'\\', u'/');
        if (entry.isFolder())
            path.chop(1);
        if (!isSafeEntryName(path))
            return invalidBundle(bundlePath);
        if (entry.isFolder())
            continue;
        Result<QByteArray> bytes = ZipReader::read(entry);
        if (!bytes)
            return invalidBundle(bundlePath);
        files.append({std::move(path), std::move(bytes).value()});
    }
    if (!holdsProject(files))
        return invalidBundle(bundlePath);
    std::ranges::sort(files, {}, &BundleFile::path);
    return files;
}

Result<void> unpackBundle(
    const StorageEnvironment& environment, const QList<BundleFile>& files, const QString& folder)
{
    constexpr QDir::Filters everything =
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    if (QFileInfo::exists(folder) && !QDir(folder).isEmpty(everything))
        return failure(QT_TRANSLATE_NOOP("Persistence", "The extraction folder is not empty: %1"), folder);
    if (!environment.fileSystem.makeFolders(folder))
        return failure(QT_TRANSLATE_NOOP("Persistence", "Could not create the folder: %1"), folder);

    QList<FileWrite> writes;
    writes.reserve(files.size());
    QSet<QString> folders{folder};
    for (const BundleFile& file : files) {
        const QString path = folder + u'/' + file.path;
        const QString parent = QFileInfo(path).path();
        if (!folders.contains(parent)) {
            if (!environment.fileSystem.makeFolders(parent))
                return failure(QT_TRANSLATE_NOOP("Persistence", "Could not create the folder for: %1"), path);
            folders.insert(parent);
        }
        writes.append({path, file.bytes});
    }

    SafeWriter writer(environment.fileSystem, environment.retryPolicy, environment.sleeper);
    const BatchOutcome outcome = writer.writeAll(writes);
    constexpr const char* unwritable = QT_TRANSLATE_NOOP("Persistence", "Could not write a project file: %1");
    if (!outcome.result)
        return failure(unwritable, writes.at(outcome.committed).path);
    if (!writer.syncFolders())
        return failure(unwritable, folder);
    return {};
}

Result<void> extractBundle(
    const StorageEnvironment& environment, const QString& bundlePath, const QString& folder)
{
    const std::optional<FileContent> archive = environment.fileSystem.readFile(bundlePath);
    if (!archive)
        return failure(QT_TRANSLATE_NOOP("Persistence", "Could not open the project file: %1"), bundlePath);
    const Result<QList<BundleFile>> files = readBundle(archive->bytes, bundlePath);
    if (!files)
        return Failure{files.message()};
    return unpackBundle(environment, files.value(), folder);
}

} // namespace tw::app::persistence
