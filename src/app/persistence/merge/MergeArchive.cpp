#include "app/persistence/merge/MergeArchive.h"

#include "app/persistence/files/ProjectFiles.h"

#include <algorithm>

namespace tw::app::persistence {

QList<BundleFile> withProjectFiles(QList<BundleFile> files, const ProjectFileMap& projectFiles)
{
    files.removeIf([](const BundleFile& file) { return isProjectFile(file.path); });
    for (const auto& [path, bytes] : projectFiles)
        files.append({path, bytes});
    std::ranges::sort(files, {}, &BundleFile::path);
    return files;
}

core::Result<void> writeMergedArchive(
    const StorageEnvironment& environment, const QString& bundlePath, const ArchiveState& known,
    const QList<BundleFile>& files)
{
    const WorkingCopy copy = workingCopyOf(bundlePath, environment.dataFolder);
    if (auto unpacked = unpackFreshCopy(environment, copy, files); !unpacked)
        return unpacked;
    // The archive first: until it is whole, the old copy is the one that an opening finds.
    SingleFile file(environment, copy, known);
    if (auto written = file.writeArchiveOf(copy.freshFolder()); !written) {
        discardFreshCopy(copy);
        return written;
    }
    if (auto retired = retireCopy(environment, copy); !retired)
        return retired;
    if (auto installed = installFreshCopy(environment, copy); !installed)
        return installed;
    return file.updateRecord();
}

} // namespace tw::app::persistence
