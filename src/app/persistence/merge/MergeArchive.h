#pragma once

#include "app/persistence/bundle/ProjectBundle.h"
#include "app/persistence/bundle/SingleFile.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "core/foundation/Result.h"

namespace tw::app::persistence {

/** The files, with these in place of the project's own; sorted by path. */
[[nodiscard]] QList<BundleFile> withProjectFiles(QList<BundleFile> files, const ProjectFileMap& projectFiles);

/**
 * Writes the files of a merged project to the archive of a single file and makes its working copy of them.
 * `known` is the archive they were merged with: any other one is not overwritten. After a failure the archive
 * is as it was, or holds the merged project whole. For the holder of the project's lock.
 */
[[nodiscard]] core::Result<void> writeMergedArchive(
    const StorageEnvironment& environment, const QString& bundlePath, const ArchiveState& known,
    const QList<BundleFile>& files);

} // namespace tw::app::persistence
