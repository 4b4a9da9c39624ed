#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "app/persistence/bundle/ProjectBundle.h"
#include "core/foundation/Result.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace tw::app::persistence {

/**
 * The private folder that a single-file project is unpacked into and saved from, and the record beside it
 * that ties it to one version of the archive. Whoever changes either holds the project's lock.
 */
struct WorkingCopy
{
    QString bundlePath; ///< Cleaned and absolute.
    QString folder;
    QString recordPath;

    /** Where a new copy is made before it takes the folder's place. */
    [[nodiscard]] QString freshFolder() const;
    /** Where an old copy goes before it is deleted. */
    [[nodiscard]] QString staleFolder() const;
};

/** The working copy that belongs to an archive, whether there is one yet or not. */
[[nodiscard]] WorkingCopy workingCopyOf(const QString& bundlePath, const QString& dataFolder);

/**
 * The SHA-256, in hexadecimal, of the archive that the copy was last unpacked from or saved to. Empty when
 * that is not known.
 */
[[nodiscard]] QByteArray recordedHash(FileSystem& fileSystem, const WorkingCopy& copy);
/** An empty hash says that the copy is not to be trusted over any archive. */
[[nodiscard]] core::Result<void> recordHash(
    const StorageEnvironment& environment, const WorkingCopy& copy, const QByteArray& hash);
/** The same as an empty hash, but possible on a full disk. */
[[nodiscard]] core::Result<void> forgetRecord(FileSystem& fileSystem, const WorkingCopy& copy);

/**
 * Unpacks the files into the place for a new copy, where remains of an interrupted attempt are removed first.
 * The files are on the medium when it succeeds; after a failure nothing is left there.
 */
[[nodiscard]] core::Result<void> unpackFreshCopy(
    const StorageEnvironment& environment, const WorkingCopy& copy, const QList<BundleFile>& files);

/**
 * Blanks the record and moves the copy, if there is one, out of the way: from here on no crash leaves a copy
 * that would win over the archive.
 */
[[nodiscard]] core::Result<void> retireCopy(const StorageEnvironment& environment, const WorkingCopy& copy);

/** Puts the new copy into the place of the retired one, which is deleted. The record stays blank. */
[[nodiscard]] core::Result<void> installFreshCopy(
    const StorageEnvironment& environment, const WorkingCopy& copy);

/** Removes what lies in the place for a new copy. */
void discardFreshCopy(const WorkingCopy& copy);

/** Of characters. With a hash, suffixes and four bytes each still within the 255 bytes of most systems. */
inline constexpr qsizetype longestSafeName = 50;

/** A name that is safe for a file on every system, cut at `longest` characters; "project" when nothing of it
 * is. */
[[nodiscard]] QString safeFileName(const QString& name, qsizetype longest = longestSafeName);

} // namespace tw::app::persistence
