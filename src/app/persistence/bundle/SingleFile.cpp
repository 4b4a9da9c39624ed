#include "app/persistence/bundle/SingleFile.h"

#include "app/persistence/FolderSaver.h"
#include "app/persistence/files/ProjectFiles.h"

#include <future>

namespace tw::app::persistence {

using core::Failure;
using core::Result;

namespace {

/**
 * Assets are copied without waiting for the medium. Before the archive counts as saved from the working copy,
 * they have to be there: after a loss of power, a copy with half an asset would look like unsaved work.
 * What cannot be synced, as a file that is read-only, is in the archive all the same.
 */
void syncOtherFiles(FileSystem& fileSystem, const QString& folder, QStringList paths)
{
    paths.removeIf([](const QString& path) { return isProjectFile(path); });
    if (paths.isEmpty() || fileSystem.syncFileSystem(folder))
        return;
    for (const QString& path : std::as_const(paths))
        static_cast<void>(fileSystem.syncFile(folder + u'/' + path));
}

} // namespace

SingleFile::SingleFile(const StorageEnvironment& environment, WorkingCopy copy)
    : m_environment(&environment)
    , m_copy(std::move(copy))
{}

SingleFile::SingleFile(const StorageEnvironment& environment, WorkingCopy copy, ArchiveState known)
    : m_environment(&environment)
    , m_copy(std::move(copy))
    , m_known(std::move(known))
{}

bool SingleFile::isChangedOnDisk()
{
    if (!m_known)
        return false;
    const std::optional<FileStamp> stamp = m_environment->fileSystem.stamp(path());
    if (!stamp || stamp->size != m_known->stamp.size)
        return true;
    if (*stamp == m_known->stamp)
        return false;
    const std::optional<FileContent> archive = m_environment->fileSystem.readFile(path());
    if (!archive || bundleHash(archive->bytes) != m_known->hash)
        return true;
    m_known->stamp = archive->stamp;
    return false;
}

Result<void> SingleFile::writeArchiveOf(const QString& folder)
{
    const auto presentArchive = [this]() -> QByteArray {
        if (!m_known)
            return {};
        std::optional<FileContent> archive = m_environment->fileSystem.readFile(path());
        return archive && archive->stamp == m_known->stamp ? std::move(archive->bytes) : QByteArray();
    };
    const BundleIndex none;
    Result<BundleUpdate> update =
        updateBundle(*m_environment, folder, m_known ? m_known->index : none, presentArchive);
    if (!update)
        return Failure{update.message()};
    const QByteArray& archive = update.value().archive;
    if (m_known && archive.isNull()) {
        m_known->index = std::move(update.value().index);
        return {};
    }
    syncOtherFiles(m_environment->fileSystem, folder, update.value().freshFiles);
    // Computing the hash of a large archive takes as long as the medium takes for its bytes.
    std::future<QByteArray> hash = std::async(std::launch::async, [archive] { return bundleHash(archive); });
    const Result<void> written = writeArchive(*m_environment, {path(), archive}, [this](qsizetype) {
        return isChangedOnDisk() ? Result<void>(changedOnDiskFailure()) : Result<void>();
    });
    if (!written)
        return written;
    m_known = {
        m_environment->fileSystem.stamp(path()).value_or(FileStamp()), hash.get(),
        std::move(update.value().index)};
    return {};
}

Result<void> SingleFile::updateRecord()
{
    if (!m_known || recordedHash(m_environment->fileSystem, m_copy) == m_known->hash)
        return {};
    return recordHash(*m_environment, m_copy, m_known->hash);
}

} // namespace tw::app::persistence
