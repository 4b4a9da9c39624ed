#pragma once

#include "app/persistence/files/FileSystem.h"
#include "app/persistence/files/RetryFileWrite.h"

#include <QList>
#include <QSet>

#include <functional>

namespace tw::app::persistence {

/** One file to be written: where, and what. */
struct FileWrite
{
    QString path;
    QByteArray bytes;
};

/** How far a batch came. Files are replaced in the listed order, so those replaced are the first ones. */
struct BatchOutcome
{
    qsizetype committed = 0;
    core::Result<void> result;
};

/**
 * Writes files so that each one is at any time whole, the old one or the new one: the bytes go to a temporary
 * file in the same folder, reach the medium, and take the target's place in one step. Failed steps are tried
 * again by the policy.
 *
 * Belongs to the thread that made it. A batch goes chunk by chunk: the temporary files are written on several
 * threads, then waited for until they are on the medium, then put in place one after another on the calling
 * thread. Waiting for a file that others were written after costs little: the system took those along.
 */
class SafeWriter
{
public:
    /**
     * Asked right before a file is replaced, with its place in the list; a failure leaves that file and all
     * that follow as they are.
     */
    using BeforeCommit = std::function<core::Result<void>(qsizetype index)>;

    /** The file system must outlive the writer. */
    explicit SafeWriter(FileSystem& fileSystem, RetryPolicy policy = {}, Sleeper sleeper = sleepThread);

    /** Stops at the first failure; the files before it stay written, no temporary file is left behind. */
    [[nodiscard]] BatchOutcome writeAll(const QList<FileWrite>& files, const BeforeCommit& beforeCommit = {});

    [[nodiscard]] core::Result<void> write(const FileWrite& file, const BeforeCommit& beforeCommit = {});

    /** Whether the file is gone. */
    bool remove(const QString& path);

    /** Has the changed names reach the medium: one sync for each folder changed since the last call. */
    [[nodiscard]] core::Result<void> syncFolders();

private:
    class Chunk;

    [[nodiscard]] core::Result<QString> prepare(const FileWrite& file, Durability durability) const;
    [[nodiscard]] core::Result<void> sync(const QString& temporary, const QString& target) const;
    [[nodiscard]] core::Result<void> commit(
        const QString& temporary, const QString& target, const std::function<core::Result<void>()>& check);

    FileSystem& m_fileSystem;
    RetryPolicy m_policy;
    Sleeper m_sleeper;
    QSet<QString> m_changedFolders;
};

/**
 * Removes from a folder the temporary files of programs that ended half-way through a write: those older than
 * a day before `now` (nanoseconds since 1970), so that no write under way loses its own.
 */
void removeAbandonedTemporaries(FileSystem& fileSystem, const QString& folder, qint64 now);

/** The message of every write that failed. */
[[nodiscard]] core::Failure writeFailure(const QString& path);

} // namespace tw::app::persistence
