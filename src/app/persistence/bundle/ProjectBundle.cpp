#include "app/persistence/bundle/ProjectBundle.h"

#include "app/persistence/bundle/FreshFiles.h"
#include "app/persistence/bundle/Sha256.h"
#include "app/persistence/files/FolderScan.h"
#include "app/persistence/files/ParallelFor.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/persistence/files/SafeWriter.h"
#include "app/persistence/zip/Crc32.h"
#include "app/persistence/zip/ZipFormat.h"
#include "app/persistence/zip/ZipReader.h"
#include "app/persistence/zip/ZipWriter.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <atomic>

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

template <class Files>
bool holdsProject(const Files& files)
{
    return std::ranges::any_of(files, [](const auto& file) { return file.path == projectFileName; });
}

/** Reads the files of a list; the failure names the first that could not be read. */
Result<QList<BundleFile>> readListed(
    FileSystem& fileSystem, const QString& folder, const std::vector<ListedFile>& listed)
{
    QList<BundleFile> files(std::ssize(listed));
    BundleFile* const first = files.data();
    std::vector<char> isRead(listed.size(), 0);
    parallelFor(files.size(), filesAtOnce, [&](qsizetype begin, qsizetype end) {
        for (qsizetype index = begin; index < end; ++index) {
            const QString& path = listed[static_cast<std::size_t>(index)].path;
            std::optional<FileContent> content = fileSystem.readFile(folder + u'/' + path);
            if (!content)
                continue;
            first[index] = {path, std::move(content->bytes)};
            isRead[static_cast<std::size_t>(index)] = 1;
        }
    });
    const auto unread = std::ranges::find(isRead, 0);
    if (unread != isRead.end())
        return unreadableFile(folder + u'/' + listed[static_cast<std::size_t>(unread - isRead.begin())].path);
    return files;
}

} // namespace

bool isBundlePath(QStringView path)
{
    return path.endsWith(u".vellory", Qt::CaseInsensitive) ||
           path.endsWith(u".tarnwick", Qt::CaseInsensitive);
}

Result<std::vector<ListedFile>> listVisibleFiles(const QString& folder, const QString& leftOut)
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
    std::vector<ListedFile> files;
    files.reserve(scan.files.size());
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
        files.push_back({file.relativePath, file.stamp});
    }
    std::ranges::sort(files, {}, &ListedFile::path);
    return files;
}

Result<std::vector<ListedFile>> listBundleFiles(const QString& folder, const QString& leftOut)
{
    if (!QFileInfo(folder).isDir())
        return failure(QT_TRANSLATE_NOOP("Persistence", "The project folder does not exist: %1"), folder);
    Result<std::vector<ListedFile>> listed = listVisibleFiles(folder, leftOut);
    if (listed && !holdsProject(listed.value()))
        return failure(
            QT_TRANSLATE_NOOP("Persistence", "The folder is not an Vellory project (no project.json): %1"),
            folder);
    return listed;
}

Result<QList<BundleFile>> readAllFiles(FileSystem& fileSystem, const QString& folder)
{
    const Result<std::vector<ListedFile>> listed = listVisibleFiles(folder);
    return listed ? readListed(fileSystem, folder, listed.value()) : Failure{listed.message()};
}

Result<QList<BundleFile>> collectBundleFiles(
    FileSystem& fileSystem, const QString& folder, const QString& leftOut)
{
    const Result<std::vector<ListedFile>> listed = listBundleFiles(folder, leftOut);
    return listed ? readListed(fileSystem, folder, listed.value()) : Failure{listed.message()};
}

Result<PackedBundle> packEntries(const std::vector<StoredEntry>& entries)
{
    qsizetype size = recordSize;
    for (const StoredEntry& entry : entries)
        size += recordSize + 4 * entry.path.size() + entry.content.size();
    PackedBundle packed;
    packed.archive.reserve(size);
    packed.offsets.reserve(entries.size());
    QBuffer buffer(&packed.archive);
    buffer.open(QIODevice::WriteOnly);
    ZipWriter writer(buffer);
    for (const StoredEntry& entry : entries) {
        if (auto added = writer.addStored(entry.path, entry.content, entry.checksum); !added)
            return Failure{added.message()};
        packed.offsets.push_back(packed.archive.size() - entry.content.size());
    }
    if (auto finished = writer.finish(); !finished)
        return Failure{finished.message()};
    return packed;
}

Result<QByteArray> packBundle(const QList<BundleFile>& files)
{
    std::vector<StoredEntry> entries(static_cast<std::size_t>(files.size()));
    parallelFor(files.size(), filesAtOnce, [&](qsizetype begin, qsizetype end) {
        for (qsizetype index = begin; index < end; ++index) {
            const BundleFile& file = files.at(index);
            entries[static_cast<std::size_t>(index)] = {file.path, file.bytes, crc32(file.bytes)};
        }
    });
    Result<PackedBundle> packed = packEntries(entries);
    return packed ? Result<QByteArray>(std::move(packed.value().archive)) : Failure{packed.message()};
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
    if (auto written = writeArchive(environment, {bundlePath, archive.value()}); !written)
        return Failure{written.message()};
    return bundleHash(archive.value());
}

Result<void> writeArchive(
    const StorageEnvironment& environment, const FileWrite& archive,
    const SafeWriter::BeforeCommit& beforeCommit)
{
    Result<void> checked;
    SafeWriter writer(environment.fileSystem, environment.retryPolicy, environment.sleeper);
    const auto check = [&](qsizetype index) {
        checked = beforeCommit ? beforeCommit(index) : Result<void>();
        return checked;
    };
    if (writer.write(archive, check) && writer.syncFolders())
        return {};
    if (!checked)
        return checked;
    return failure(
        QT_TRANSLATE_NOOP(
            "Persistence", "Could not write the project file (it may be locked by another program -- the "
                           "desktop app, a sync client, or antivirus): %1"),
        archive.path);
}

Result<FileContent> readArchive(FileSystem& fileSystem, const QString& bundlePath)
{
    std::optional<FileContent> archive = fileSystem.readFile(bundlePath);
    if (!archive)
        return failure(QT_TRANSLATE_NOOP("Persistence", "Could not open the project file: %1"), bundlePath);
    return *std::move(archive);
}

QByteArray bundleHash(const QByteArray& archive)
{
    return sha256(archive).toHex();
}

Result<BundleContents> readBundle(QByteArrayView archive, const QString& bundlePath)
{
    const Result<ZipReader> reader = ZipReader::open(archive, fileNames);
    if (!reader)
        return invalidBundle(bundlePath);
    struct NamedEntry
    {
        QString path;
        const ZipEntry* entry = nullptr;
    };
    std::vector<NamedEntry> entries;
    for (const ZipEntry& entry : reader.value().entries()) {
        QString path = entry.name;
        path.replace(u'\\', u'/');
        if (entry.isFolder())
            path.chop(1);
        if (!isSafeEntryName(path))
            return invalidBundle(bundlePath);
        if (!entry.isFolder())
            entries.push_back({std::move(path), &entry});
    }
    if (!holdsProject(entries))
        return invalidBundle(bundlePath);
    std::ranges::sort(entries, {}, &NamedEntry::path);

    BundleContents contents{QList<BundleFile>(std::ssize(entries)), std::vector<EntryPlace>(entries.size())};
    BundleFile* const first = contents.files.data();
    std::atomic<bool> isSound = true;
    parallelFor(std::ssize(entries), filesAtOnce, [&](qsizetype begin, qsizetype end) {
        for (qsizetype index = begin; index < end && isSound; ++index) {
            NamedEntry& named = entries[static_cast<std::size_t>(index)];
            Result<QByteArray> bytes = ZipReader::read(*named.entry);
            if (!bytes) {
                isSound = false;
                return;
            }
            first[index] = {std::move(named.path), std::move(bytes).value()};
            const bool isStored = named.entry->method == zip::methodStored;
            contents.places[static_cast<std::size_t>(index)] = {
                named.entry->checksum, isStored ? named.entry->packed.data() - archive.data() : -1};
        }
    });
    if (!isSound)
        return invalidBundle(bundlePath);
    return contents;
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

    const BatchOutcome outcome = writeFreshFiles(environment, folder, writes);
    if (outcome.result)
        return {};
    const QString unwritten = writes.isEmpty() ? folder : writes.at(outcome.committed).path;
    return failure(QT_TRANSLATE_NOOP("Persistence", "Could not write a project file: %1"), unwritten);
}

Result<void> extractBundle(
    const StorageEnvironment& environment, const QString& bundlePath, const QString& folder)
{
    const Result<FileContent> archive = readArchive(environment.fileSystem, bundlePath);
    if (!archive)
        return Failure{archive.message()};
    const Result<BundleContents> contents = readBundle(archive.value().bytes, bundlePath);
    if (!contents)
        return Failure{contents.message()};
    return unpackBundle(environment, contents.value().files, folder);
}

} // namespace tw::app::persistence
