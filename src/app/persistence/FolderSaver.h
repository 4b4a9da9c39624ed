#pragma once

#include "app/persistence/DiskState.h"
#include "app/persistence/StorageEnvironment.h"
#include "app/persistence/files/SafeWriter.h"
#include "core/foundation/Result.h"
#include "core/project/Project.h"

#include <QStringList>

#include <limits>
#include <map>
#include <set>
#include <variant>
#include <vector>

namespace tw::app::persistence {

/** How much of a project a save looks at. */
enum class SaveExtent
{
    /** The objects that moved since their bytes were recorded. */
    Changed,
    /** Every object, written anew and compared. */
    Everything,
};

/** No object ever has this revision: its file is not what we would write. */
inline constexpr quint64 neverSaved = std::numeric_limits<quint64>::max();

/** What is known of the files on disk, so that a save looks at nothing else than what moved. */
struct SavedState
{
    /** The revision each object had when its file was last read or written as we would write it. */
    std::map<core::ContentId, quint64> revisions;
    /** The categories that have a file. */
    std::set<core::CategoryId> categories;
    /** Files that hold an object or a category under a name that is not its own; the next save removes them.
     */
    QStringList strayFiles;
};

/**
 * Writes a project into its folder: objects, what is left over of removed ones away, categories likewise,
 * then the project document. Every file is whole at any time; the first failure ends the save, and the
 * records tell exactly what was written. One use, on the main thread; the parts handed in must outlive it.
 */
class FolderSaver
{
public:
    /** `disk` and `saved` are brought up to date file by file. */
    FolderSaver(const StorageEnvironment& environment, QString folder, DiskState& disk, SavedState& saved);

    [[nodiscard]] core::Result<void> saveProject(const core::project::Project& project, SaveExtent extent);

    /**
     * Removes what is left of saves that never ended, of the given temporary files those that lie where a
     * save writes. Only for the holder of the project's lock, since nobody else's save is under way then. One
     * that cannot be removed stays: it does no harm.
     */
    void removeLeftovers(const QStringList& relativePaths);

private:
    struct PendingFile
    {
        QString relativePath;
        QByteArray bytes;
        /** What is in the file: an object, a category or the project document. */
        std::variant<std::monostate, core::ContentId, core::CategoryId> id;
        quint64 revision = 0; ///< Of an object.
    };

    [[nodiscard]] core::Result<void> prepareFolder(QStringView name, const char* failureText);
    [[nodiscard]] core::Result<void> saveObjects(const core::project::Project& project, SaveExtent extent);
    [[nodiscard]] core::Result<void> saveTaxonomy(const core::project::Project& project);
    [[nodiscard]] core::Result<void> saveProjectDocument(const core::project::Project& project);
    [[nodiscard]] core::Result<void> writeChanged(std::vector<PendingFile> files);
    [[nodiscard]] core::Result<void> removeFiles(const QStringList& relativePaths);
    [[nodiscard]] core::Result<void> removeStrays(QStringView folder);
    void noteOnDisk(const PendingFile& file);

    QString m_folder;
    FileSystem& m_fileSystem;
    DiskState& m_disk;
    SavedState& m_saved;
    SafeWriter m_writer;
};

/** The message of a save that would overwrite what others wrote. */
[[nodiscard]] core::Failure changedOnDiskFailure();

} // namespace tw::app::persistence
