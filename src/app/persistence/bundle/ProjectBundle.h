#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "core/foundation/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringView>

namespace tw::app::persistence {

/** A file of a project and its path from the project's folder, with "/" on every system. */
struct BundleFile
{
    QString path;
    QByteArray bytes;

    bool operator==(const BundleFile&) const = default;
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

/** Checks the whole archive and gives its files, sorted by path. The path is for the message only. */
[[nodiscard]] core::Result<QList<BundleFile>> readBundle(QByteArrayView archive, const QString& bundlePath);

/** Writes the files below a folder that is new or empty. A failure may leave some of them there. */
[[nodiscard]] core::Result<void> unpackBundle(
    const StorageEnvironment& environment, const QList<BundleFile>& files, const QString& folder);

/** Reads and unpacks an archive; nothing is written unless all of it is sound. */
[[nodiscard]] core::Result<void> extractBundle(
    const StorageEnvironment& environment, const QString& bundlePath, const QString& folder);

} // namespace tw::app::persistence
