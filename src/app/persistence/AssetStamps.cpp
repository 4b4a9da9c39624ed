#include "app/persistence/AssetStamps.h"

#include "app/persistence/files/FolderScan.h"
#include "app/persistence/files/PlatformFiles.h"
#include "app/persistence/files/ProjectFiles.h"

namespace tw::app::persistence {

namespace {

FolderScan scanAssets(const QString& projectFolder)
{
    return scanFolder(projectFolder + u'/' + assetsFolder.toString(), ScannedFiles::All);
}

QString fromRoot(const ScannedFile& file)
{
    return assetsFolder.toString() + u'/' + file.relativePath;
}

} // namespace

void AssetStamps::record(const QString& projectFolder)
{
    m_stamps.clear();
    for (const ScannedFile& file : scanAssets(projectFolder).files)
        m_stamps.insert(fromRoot(file), {file.stamp.size, file.stamp.mtimeNs});
}

void AssetStamps::recordFile(const QString& projectFolder, const QString& relativePath)
{
    if (const auto stamp = platform::stampOf(projectFolder + u'/' + relativePath))
        m_stamps.insert(relativePath, {stamp->size, stamp->mtimeNs});
}

qsizetype AssetStamps::changesIn(const QString& projectFolder) const
{
    const FolderScan scan = scanAssets(projectFolder);
    qsizetype known = 0;
    qsizetype changes = 0;
    for (const ScannedFile& file : scan.files) {
        const auto stamp = m_stamps.constFind(fromRoot(file));
        if (stamp != m_stamps.cend())
            ++known;
        if (stamp == m_stamps.cend() || *stamp != Stamp{file.stamp.size, file.stamp.mtimeNs})
            ++changes;
    }
    // What lies in a folder that cannot be read need not be gone.
    return scan.isComplete() ? changes + m_stamps.size() - known : changes;
}

} // namespace tw::app::persistence
