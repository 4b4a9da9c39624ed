#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

namespace tw::app::persistence {

/** What tells one state of a file from another without reading it. Times are nanoseconds since 1970. */
struct FileStamp
{
    qint64 size = 0;    ///< Bytes.
    qint64 mtimeNs = 0; ///< Last change of the content.
    qint64 ctimeNs = 0; ///< Last change of the file's record; 0 where the system keeps none.
    quint64 inode = 0;  ///< 0 where the system has none.
    quint64 device = 0;

    bool operator==(const FileStamp&) const = default;
};

/** A file read whole, with its stamp from the moment before the first byte was read. */
struct FileContent
{
    QByteArray bytes;
    FileStamp stamp;
};

/** Whether a write waits until its bytes cannot be lost any more. */
enum class Durability
{
    OnMedium,
    /** They may be in memory alone until they are synced. */
    Cached,
};

/** What keeps files from being written at a place. */
enum class WriteObstacle
{
    None, ///< None that is known of.
    DiskFull,
    NotWritable, ///< The folder is not ours to write in, or the whole medium is read-only.
};

/** See FileSystem::hold(). */
using FileHold = std::shared_ptr<const void>;

/**
 * The operations on files that loading and saving need. Passed in by reference, so that tests can stand in a
 * medium that fails. Every operation may be called from any thread. None says more than that it failed:
 * callers word the failure.
 */
class FileSystem
{
public:
    FileSystem() = default;
    virtual ~FileSystem() = default;
    Q_DISABLE_COPY_MOVE(FileSystem)

    [[nodiscard]] virtual std::optional<FileContent> readFile(const QString& path) = 0;

    /** No value when nothing is there. Follows links. */
    [[nodiscard]] virtual std::optional<FileStamp> stamp(const QString& path) = 0;

    /**
     * Writes the bytes to a new file beside the target, with the target's permissions if it exists. Gives the
     * new file's path; after a failure nothing is left behind.
     */
    [[nodiscard]] virtual std::optional<QString> writeTemporary(
        const QString& target, const QByteArray& bytes, Durability durability) = 0;

    /** Has the bytes of a file reach the medium. */
    [[nodiscard]] virtual bool syncFile(const QString& path) = 0;

    /**
     * Has all that was written to the file system of the folder reach the medium, by whomever. False where
     * the system has no such call, or it failed: nothing is known of any file then.
     */
    [[nodiscard]] virtual bool syncFileSystem(const QString& folder) = 0;

    /**
     * Keeps the space of the file at the path in use until the handle is dropped, on whatever thread, even
     * when the file was replaced: making it free takes longer than replacing it. Null where that cannot be
     * done.
     */
    [[nodiscard]] virtual FileHold hold(const QString& path) = 0;

    /** Puts the temporary in the target's place in one step; others see the old file or the new one. */
    [[nodiscard]] virtual bool replace(const QString& temporary, const QString& target) = 0;

    /** Whether the file is gone, also when it was not there. */
    virtual bool remove(const QString& path) = 0;

    /** Makes the folder with all missing parents; an existing one is a success. */
    [[nodiscard]] virtual bool makeFolders(const QString& path) = 0;

    /** Has the names in a folder reach the medium, as far as the system can do that. */
    [[nodiscard]] virtual bool syncFolder(const QString& path) = 0;

    /** Looks why so many bytes might not get into the folder, or into one yet to be made at the path. */
    [[nodiscard]] virtual WriteObstacle obstacleAt(const QString& folder, qint64 bytes) = 0;
};

/** The computer's own file system. */
class DiskFileSystem final : public FileSystem
{
public:
    std::optional<FileContent> readFile(const QString& path) override;
    std::optional<FileStamp> stamp(const QString& path) override;
    std::optional<QString> writeTemporary(
        const QString& target, const QByteArray& bytes, Durability durability) override;
    bool syncFile(const QString& path) override;
    bool syncFileSystem(const QString& folder) override;
    FileHold hold(const QString& path) override;
    bool replace(const QString& temporary, const QString& target) override;
    bool remove(const QString& path) override;
    bool makeFolders(const QString& path) override;
    bool syncFolder(const QString& path) override;
    WriteObstacle obstacleAt(const QString& folder, qint64 bytes) override;
};

} // namespace tw::app::persistence
