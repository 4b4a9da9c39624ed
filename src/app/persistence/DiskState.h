#pragma once

#include "app/persistence/files/FileSystem.h"
#include "app/persistence/files/FolderScan.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace tw::app::persistence {

/** Nanoseconds since 1970. */
using Clock = std::function<qint64()>;
[[nodiscard]] qint64 systemClock();

/**
 * Whether a stamp taken at this time tells one content from the next: a younger one may still belong to two,
 * since some file systems count whole seconds.
 */
[[nodiscard]] bool isSettled(const FileStamp& stamp, qint64 now);

/** How the text files of a folder differ from what was recorded. Paths are relative, sorted. */
struct DiskChanges
{
    QStringList added;
    QStringList removed;
    QStringList changed;
    /** The temporary files of saves, anywhere in the folder; these are no changes. */
    QStringList leftovers;
    /** Folders that could not be read; what is missing there need not have been removed. */
    QStringList unreadableFolders;

    [[nodiscard]] bool isEmpty() const { return added.isEmpty() && removed.isEmpty() && changed.isEmpty(); }
};

/**
 * What the text files of a project folder looked like when this program last read or wrote them: the guard
 * against overwriting what others wrote, and the common ancestor of a merge. Bytes are kept once and shared.
 *
 * A file whose stamp is the recorded one is unchanged without being read, provided the stamp had settled when
 * it was taken: a file changed twice within the clock's resolution keeps its stamp. Any other file is read
 * and compared, so a touched time or an identical rewrite is no change.
 *
 * Belongs to one thread; a copy is independent and cheap, and may check the folder on another one. The file
 * system must outlive it.
 */
class DiskState
{
public:
    explicit DiskState(FileSystem& fileSystem, Clock clock = systemClock);

    /** Records a file as just read or written. */
    void record(const QString& relativePath, QByteArray bytes, const FileStamp& stamp);
    /** Records our own write of these bytes with the stamp the file has now. */
    void recordWritten(const QString& folder, const QString& relativePath, QByteArray bytes);
    void forget(const QString& relativePath);
    void clear();
    /** Makes room for that many records at once. */
    void reserve(qsizetype count) { m_records.reserve(count); }

    /**
     * Reads and records one file; one that cannot be read shows at the next check. Of files that are not the
     * project's only a hash is kept: they guard a save, but nobody merges them.
     */
    void recordFile(const QString& folder, const QString& relativePath);
    /** The same for every text file of the folder that is not recorded yet. */
    void recordUnseen(const QString& folder);
    /** Takes a listing of the folder's text files, which makes the next check cheaper. */
    void rememberNames(FolderScan listing);

    [[nodiscard]] qsizetype count() const { return m_records.size(); }
    [[nodiscard]] bool contains(const QString& relativePath) const
    {
        return m_records.contains(relativePath);
    }
    /** The recorded bytes of a project file; null when it is not recorded. */
    [[nodiscard]] QByteArray bytes(const QString& relativePath) const;
    [[nodiscard]] QStringList paths() const { return m_records.keys(); }

    /** Compares the folder with the records: one stat a file, plus a read of what moved. */
    [[nodiscard]] DiskChanges changesIn(const QString& folder);
    /** Whether one file is still as recorded; one that is not recorded must not exist. */
    [[nodiscard]] bool isUnchanged(const QString& folder, const QString& relativePath);

private:
    struct Record
    {
        QByteArray bytes;
        FileStamp stamp;
        bool isSettled = false;
        /** The bytes are the content's hash. */
        bool isHash = false;
    };

    [[nodiscard]] bool isSettled(const FileStamp& stamp) const;
    void insert(const QString& relativePath, Record record);
    /** Whether the record of a file in the last scan is known to hold without a look at it. */
    [[nodiscard]] bool isVouchedFor(const ScannedFile& file) const;
    /** Reads the file and compares; an equal one gets its new stamp. */
    [[nodiscard]] bool isSameContent(const QString& path, Record& record);

    FileSystem* m_fileSystem; // never null; a pointer, so that a state can be replaced whole
    Clock m_clock;
    QHash<QString, Record> m_records;

    /** The last look at the folder; most of its files are those of the next one. */
    FolderScan m_lastScan;
    /** For each file there: with the stamp it has there, the file holds the recorded bytes. */
    std::vector<bool> m_isVouchedFor;
    /** Records made or dropped since then: nothing of the above holds for them. */
    QSet<QString> m_newRecords;
};

} // namespace tw::app::persistence
