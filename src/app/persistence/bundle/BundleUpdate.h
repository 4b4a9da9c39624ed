#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "app/persistence/bundle/ProjectBundle.h"
#include "core/foundation/Result.h"

#include <QStringList>

#include <functional>
#include <vector>

namespace tw::app::persistence {

/** A file of the working copy as it stands in the archive. */
struct IndexedFile
{
    QString path;
    FileStamp stamp; ///< Of the file in the working copy, from before it was read.
    bool isSettled = false;
    EntryPlace place;
    qsizetype size = 0;
};

/** All files of an archive, sorted by path. */
using BundleIndex = std::vector<IndexedFile>;

struct BundleUpdate
{
    /** The archive of the folder as it is now, or null when the present one holds the same files. */
    QByteArray archive;
    BundleIndex index;
    /** The files that are not in the present archive as they are now. */
    QStringList freshFiles;
};

/**
 * The archive of the project in the folder, byte for byte that of buildBundle, but of files that did not
 * change since the present archive was made, neither is anything read but their stamps, nor the checksum
 * taken anew: their bytes come out of the present archive. That one is asked for only when it is needed; its
 * bytes must be those that the index describes, and an empty answer has everything read from the folder.
 */
[[nodiscard]] core::Result<BundleUpdate> updateBundle(
    const StorageEnvironment& environment, const QString& folder, const BundleIndex& index,
    const std::function<QByteArray()>& presentArchive);

} // namespace tw::app::persistence
