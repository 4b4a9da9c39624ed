#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "app/persistence/files/SafeWriter.h"
#include "core/foundation/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringView>

#include <vector>

namespace tw::app::persistence {

/** A file of a project and its path from the project's folder, with "/" on every system. */
struct BundleFile
{
    QString path;
    QByteArray bytes;

    bool operator==(const BundleFile&) const = default;
};

/** A file of a project that is not read yet. */
struct ListedFile
{
    QString path;
    FileStamp stamp;
};

/** What is known of an entry of an archive besides its path and content. */
struct EntryPlace
{
    quint32 checksum = 0;
    /** Where in the archive the content begins; -1 when it is packed there. */
    qsizetype offset = -1;
};

/** The files of an archive, sorted by path, and the places of their entries in the same order. */
struct BundleContents
{
    QList<BundleFile> files;
    std::vector<EntryPlace> places;
};

/** An entry to be written whose checksum is known. */
struct StoredEntry
{
    QString path;
    QByteArrayView content;
    quint32 checksum = 0;
};

struct PackedBundle
{
    QByteArray archive;
    std::vector<qsizetype> offsets; ///< Of the contents, in the order of the entries.
};

/**
 * A single-file project is a ZIP archive of a project folder. Its bytes depend on nothing but the files, so
 * that an unchanged project gives the same archive again. All functions may run on any thread; none looks
 * after locks or working copies.
 */

/** Whether the path ends as single-file projects do, in any case. */
[[nodiscard]] bool isBundlePath(QStringView path);

/**
 * Reads the files that belong into an archive of the folder, sorted by path: all but hidden ones and what
 * lies below the folder `leftOut`. Links to files are read, links to folders are not followed. Fails when the
 * folder holds no project, or a file that could not be read or taken out of the archive again.
 */
[[nodiscard]] core::Result<QList<BundleFile>> collectBundleFiles(
    FileSystem& fileSystem, const QString& folder, const QString& leftOut = {});

/** The files that belong into an archive of the folder, as above, with their stamps; nothing is read. */
[[nodiscard]] core::Result<std::vector<ListedFile>> listBundleFiles(
    const QString& folder, const QString& leftOut = {});

/** The same even if the folder holds no project, or is missing. */
[[nodiscard]] core::Result<std::vector<ListedFile>> listVisibleFiles(
    const QString& folder, const QString& leftOut = {});

/**
 * Reads the same files even if the folder holds no project: for keeping what is there, whatever it is.
 */
[[nodiscard]] core::Result<QList<BundleFile>> readAllFiles(FileSystem& fileSystem, const QString& folder);

/** The archive of these entries, in their order. */
[[nodiscard]] core::Result<PackedBundle> packEntries(const std::vector<StoredEntry>& entries);

/** The archive of these files, in their order. */
[[nodiscard]] core::Result<QByteArray> packBundle(const QList<BundleFile>& files);

/** The archive of the project in the folder. */
[[nodiscard]] core::Result<QByteArray> buildBundle(FileSystem& fileSystem, const QString& folder);

/**
 * Writes the archive of the folder to the path: at any time the old archive is there or the new one. Gives
 * the SHA-256 of the new one in hexadecimal.
 */
[[nodiscard]] core::Result<QByteArray> writeProjectBundle(
    const StorageEnvironment& environment, const QString& folder, const QString& bundlePath);

/**
 * Writes bytes as an archive to the path, with the guarantee of writeProjectBundle. The check is asked right
 * before the old archive is replaced; its failure is passed on.
 */
[[nodiscard]] core::Result<void> writeArchive(
    const StorageEnvironment& environment, const FileWrite& archive,
    const SafeWriter::BeforeCommit& beforeCommit = {});

/** The bytes and the stamp of an archive that is not looked into yet. */
[[nodiscard]] core::Result<FileContent> readArchive(FileSystem& fileSystem, const QString& bundlePath);

/** Checks the whole archive and gives what is in it. The path is for the message only. */
[[nodiscard]] core::Result<BundleContents> readBundle(QByteArrayView archive, const QString& bundlePath);

/** The SHA-256 of an archive in hexadecimal. */
[[nodiscard]] QByteArray bundleHash(const QByteArray& archive);

/** Writes the files below a folder that is new or empty. A failure may leave some of them there. */
[[nodiscard]] core::Result<void> unpackBundle(
    const StorageEnvironment& environment, const QList<BundleFile>& files, const QString& folder);

/** Reads and unpacks an archive; nothing is written unless all of it is sound. */
[[nodiscard]] core::Result<void> extractBundle(
    const StorageEnvironment& environment, const QString& bundlePath, const QString& folder);

} // namespace tw::app::persistence
