#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "app/persistence/bundle/BundleUpdate.h"
#include "app/persistence/bundle/WorkingCopy.h"
#include "core/foundation/Result.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tw::app::persistence {

/** What an archive was when it was last read or written. */
struct ArchiveState
{
    FileStamp stamp;
    QByteArray hash; ///< As the record of the working copy has it.
    BundleIndex index;
};

/**
 * An open single-file project: its archive and its working copy. Knows what the archive was when it was last
 * read or written here, guards against overwriting what others wrote since, and keeps what makes the next
 * write cheap. Main thread; whoever writes holds the project's lock. The environment must outlive it.
 */
class SingleFile
{
public:
    /** An archive that is not written yet; whatever lies at its path will be replaced. */
    SingleFile(const StorageEnvironment& environment, WorkingCopy copy);
    SingleFile(const StorageEnvironment& environment, WorkingCopy copy, ArchiveState known);

    [[nodiscard]] const QString& path() const { return m_copy.bundlePath; }
    [[nodiscard]] const WorkingCopy& workingCopy() const { return m_copy; }

    /**
     * Whether the archive is another than the one last read or written here, or gone. A touched time is no
     * change: an archive of the same size is read and compared by its hash.
     */
    [[nodiscard]] bool isChangedOnDisk();

    /**
     * Brings the archive up to the folder, which is the working copy or is to become it; an archive that
     * holds the same files already is not touched. Refused when the archive changed on disk.
     */
    [[nodiscard]] core::Result<void> writeArchiveOf(const QString& folder);

    /** Ties the working copy to the archive as it is known here, if the record does not do so already. */
    [[nodiscard]] core::Result<void> updateRecord();

private:
    const StorageEnvironment* m_environment; // never null; a pointer, so that one can be replaced by another
    WorkingCopy m_copy;
    std::optional<ArchiveState> m_known;
};

} // namespace tw::app::persistence
