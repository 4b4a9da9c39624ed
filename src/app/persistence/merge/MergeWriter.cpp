#include "app/persistence/merge/MergeWriter.h"

#include "app/persistence/FolderSaver.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/persistence/files/SafeWriter.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

namespace tw::app::persistence {

namespace {

class MergeWriter
{
public:
    MergeWriter(
        const StorageEnvironment& environment, QString folder, const ProjectFileMap& onDisk, DiskState& seen)
        : m_folder(std::move(folder))
        , m_fileSystem(environment.fileSystem)
        , m_onDisk(onDisk)
        , m_seen(seen)
        , m_writer(environment.fileSystem, environment.retryPolicy, environment.sleeper)
    {}

    MergeWritten run(const ProjectFileMap& merged)
    {
        if (areFoldersReady() && writeChanged(merged) && removeGone(merged) && m_writer.syncFolders())
            return MergeWritten::Completely;
        return putBack() ? MergeWritten::NotAtAll : MergeWritten::Partly;
    }

private:
    /** A folder that is a link would take the files out of the project. */
    bool areFoldersReady()
    {
        return std::ranges::all_of(std::array{objectsFolder, taxonomyFolder}, [this](QStringView name) {
            const QString path = pathOf(name.toString());
            return m_fileSystem.makeFolders(path) && !QFileInfo(path).isSymLink();
        });
    }

    bool writeChanged(const ProjectFileMap& merged)
    {
        QStringList paths;
        QList<FileWrite> writes;
        for (const auto& [path, bytes] : merged) {
            const auto present = m_onDisk.find(path);
            if (present != m_onDisk.end() && present->second == bytes)
                continue;
            paths.append(path);
            writes.append({pathOf(path), bytes});
        }
        const BatchOutcome outcome = m_writer.writeAll(writes, [&](qsizetype index) -> core::Result<void> {
            if (!m_seen.isUnchanged(m_folder, paths.at(index)))
                return changedOnDiskFailure();
            return {};
        });
        for (qsizetype index = 0; index < outcome.committed; ++index)
            noteWritten(paths.at(index), writes.at(index).bytes);
        return outcome.result.isOk();
    }

    bool removeGone(const ProjectFileMap& merged)
    {
        for (const auto& entry : m_onDisk) {
            const QString& path = entry.first;
            if (merged.contains(path))
                continue;
            if (!m_seen.isUnchanged(m_folder, path) || !m_writer.remove(pathOf(path)))
                return false;
            m_seen.forget(path);
            m_touched.append(path);
        }
        return true;
    }

    /** Whether every file is as it was before. */
    bool putBack()
    {
        bool isBack = true;
        for (const QString& path : std::as_const(m_touched)) {
            // Somebody else's edit of the last moment is none of ours to undo.
            if (!m_seen.isUnchanged(m_folder, path)) {
                isBack = false;
                continue;
            }
            const auto before = m_onDisk.find(path);
            if (before == m_onDisk.end()) {
                if (m_writer.remove(pathOf(path)))
                    m_seen.forget(path);
                else
                    isBack = false;
            } else if (m_writer.write({pathOf(path), before->second})) {
                m_seen.recordWritten(m_folder, path, before->second);
            } else {
                isBack = false;
            }
        }
        static_cast<void>(m_writer.syncFolders());
        return isBack;
    }

    void noteWritten(const QString& path, const QByteArray& bytes)
    {
        m_seen.recordWritten(m_folder, path, bytes);
        m_touched.append(path);
    }

    [[nodiscard]] QString pathOf(const QString& relativePath) const { return m_folder + u'/' + relativePath; }

    QString m_folder;
    FileSystem& m_fileSystem;
    const ProjectFileMap& m_onDisk;
    DiskState& m_seen;
    SafeWriter m_writer;
    QStringList m_touched; ///< What was written or removed, in that order.
};

} // namespace

MergeWritten writeMergedProject(
    const StorageEnvironment& environment, const QString& folder, const ProjectFileMap& onDisk,
    const ProjectFileMap& merged, DiskState& seen)
{
    return MergeWriter(environment, folder, onDisk, seen).run(merged);
}

} // namespace tw::app::persistence
