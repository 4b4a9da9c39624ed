#include "app/workspace/TheirVersion.h"

#include "app/persistence/files/ProjectFiles.h"
#include "app/workspace/Workspace.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>

namespace tw::app::workspace {

using core::Failure;
using core::Result;
using persistence::BundleFile;
using persistence::DiskChanges;
using persistence::DiskState;
using persistence::ProjectFileMap;

namespace {

/**
 * Brings `state` and the project files `files`, which held the same, up to what the folder holds now. Files
 * that are none of the project's only guard a save, so that it is enough to take note of them.
 */
Result<void> readChanges(
    persistence::FileSystem& fileSystem, const QString& folder, DiskState& state, ProjectFileMap& files)
{
    const DiskChanges changes = state.changesIn(folder);
    if (!changes.unreadableFolders.isEmpty())
        return unreadableOnDisk(QDir::toNativeSeparators(folder + u'/' + changes.unreadableFolders.first()));
    for (const QString& path : changes.added + changes.changed) {
        if (!persistence::isProjectFile(path)) {
            state.recordFile(folder, path);
            continue;
        }
        const auto content = fileSystem.readFile(folder + u'/' + path);
        if (!content)
            return unreadableOnDisk(path);
        files.insert_or_assign(path, content->bytes);
        state.record(path, content->bytes, content->stamp);
    }
    for (const QString& path : changes.removed) {
        files.erase(path);
        state.forget(path);
    }
    return {};
}

/** Files apart from the project's own that the archive does not have in common with the folder. */
Result<qsizetype> otherDifferences(
    persistence::FileSystem& fileSystem, const QString& folder, const QList<BundleFile>& archived)
{
    const auto present = persistence::readAllFiles(fileSystem, folder);
    if (!present)
        return Failure{present.message()};
    QHash<QString, QByteArray> others;
    for (const BundleFile& file : present.value()) {
        if (!persistence::isProjectFile(file.path))
            others.insert(file.path, file.bytes);
    }
    qsizetype differences = 0;
    for (const BundleFile& file : archived) {
        if (persistence::isProjectFile(file.path))
            continue;
        const auto here = others.constFind(file.path);
        if (here == others.cend() || *here != file.bytes)
            ++differences;
        others.remove(file.path);
    }
    return differences + others.size();
}

Result<void> readArchive(Workspace& workspace, TheirVersion& version)
{
    persistence::FileSystem& fileSystem = workspace.environment().fileSystem;
    const QString path = workspace.singleFilePath();
    const auto content = persistence::readArchive(fileSystem, path);
    auto archived = content ? persistence::readBundle(content.value().bytes, path)
                            : Result<persistence::BundleContents>(Failure{content.message()});
    if (!archived)
        return unreadableOnDisk(archived.message());
    TheirArchive& archive = version.archive.emplace();
    archive.files = std::move(archived.value().files);
    archive.state = {content.value().stamp, persistence::bundleHash(content.value().bytes), {}};
    version.files.clear();
    for (const BundleFile& file : archive.files) {
        if (persistence::isProjectFile(file.path))
            version.files.emplace(file.path, file.bytes);
    }
    const auto others = otherDifferences(fileSystem, workspace.folderPath(), archive.files);
    if (!others)
        return Failure{others.message()};
    version.changedMedia = others.value();
    return {};
}

} // namespace

Failure unreadableOnDisk(const QString& detail)
{
    return {QCoreApplication::translate(
                "ExternalReview",
                "The files on disk cannot be read as a project right now: %1. Nothing was changed. If a "
                "sync client is still at work, wait until it is done, then check again.")
                .arg(detail)};
}

ProjectFileMap projectFilesOf(const DiskState& state)
{
    ProjectFileMap files;
    for (const QString& path : state.paths()) {
        if (persistence::isProjectFile(path))
            files.emplace(path, state.bytes(path));
    }
    return files;
}

Result<TheirVersion> readTheirVersion(Workspace& workspace)
{
    TheirVersion version{projectFilesOf(workspace.diskState()), workspace.diskState(), {}, 0};
    const QString& folder = workspace.folderPath();
    if (auto read = readChanges(workspace.environment().fileSystem, folder, version.seen, version.files);
        !read)
        return Failure{read.message()};
    if (workspace.isBundleChangedOnDisk()) {
        if (auto read = readArchive(workspace, version); !read)
            return Failure{read.message()};
    } else {
        version.changedMedia = workspace.assetStamps().changesIn(folder);
    }
    // Without it there is no project: a folder that is not there, or not all of it yet.
    if (!version.files.contains(persistence::projectFileName.toString()))
        return unreadableOnDisk(persistence::projectFileName.toString());
    return version;
}

} // namespace tw::app::workspace
