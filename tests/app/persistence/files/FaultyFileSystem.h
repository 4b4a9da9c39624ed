#pragma once

#include "app/persistence/files/FileSystem.h"

#include <QHash>
#include <QMutex>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace tw::app::persistence {

/** The real file system with faults put in on purpose, and a count of what was asked of it. */
class FaultyFileSystem final : public FileSystem
{
public:
    static constexpr int always = std::numeric_limits<int>::max();

    /** How many more times an operation on a path fails; `always` for ever. */
    QHash<QString, int> failingWrites;
    QHash<QString, int> failingReplacements;
    QHash<QString, int> failingSyncs;
    /** How many more times a path can be replaced before it fails for ever. */
    QHash<QString, int> replacementsLeft;
    QSet<QString> unreadable;
    /** Whether all of a file system can be synced at once. */
    bool syncsTogether = true;
    /** The medium is full after so many bytes. */
    qint64 bytesLeft = std::numeric_limits<qint64>::max();
    /** It takes so many more files. */
    int writesLeft = always;
    /** It takes so many more changes of any kind; then it is read-only. */
    int changesLeft = always;

    [[nodiscard]] int writes() const { return m_writes; }
    [[nodiscard]] int mostTemporaries() const { return m_mostTemporaries; }
    [[nodiscard]] const QStringList& replaced() const { return m_replaced; }
    [[nodiscard]] const QStringList& synced() const { return m_synced; }

    std::optional<FileContent> readFile(const QString& path) override
    {
        return unreadable.contains(path) ? std::nullopt : m_disk.readFile(path);
    }
    std::optional<FileStamp> stamp(const QString& path) override { return m_disk.stamp(path); }

    std::optional<QString> writeTemporary(
        const QString& target, const QByteArray& bytes, Durability durability) override
    {
        {
            const QMutexLocker lock(&m_mutex);
            ++m_writes;
            if (isReadOnly() || fails(failingWrites, target) || bytesLeft < bytes.size() || writesLeft == 0)
                return std::nullopt;
            if (writesLeft != always)
                --writesLeft;
            bytesLeft -= bytes.size();
            m_mostTemporaries = std::max(m_mostTemporaries, ++m_temporaries);
        }
        const auto temporary = m_disk.writeTemporary(target, bytes, durability);
        const QMutexLocker lock(&m_mutex);
        if (temporary && durability == Durability::Cached)
            m_unsynced.insert(*temporary, target);
        return temporary;
    }

    bool syncFile(const QString& path) override
    {
        const QMutexLocker lock(&m_mutex);
        if (fails(failingSyncs, m_unsynced.value(path)) || !m_disk.syncFile(path))
            return false;
        m_unsynced.remove(path);
        return true;
    }

    bool syncFileSystem(const QString& folder) override
    {
        const QMutexLocker lock(&m_mutex);
        if (!syncsTogether || !m_disk.syncFileSystem(folder))
            return false;
        m_unsynced.clear();
        return true;
    }

    bool replace(const QString& temporary, const QString& target) override
    {
        const QMutexLocker lock(&m_mutex);
        if (isReadOnly())
            return false;
        const auto left = replacementsLeft.find(target);
        if (left != replacementsLeft.end() && --left.value() < 0)
            return false;
        EXPECT_FALSE(m_unsynced.contains(temporary)) << "put in place before it is on the medium";
        if (fails(failingReplacements, target) || !m_disk.replace(temporary, target))
            return false;
        --m_temporaries;
        m_replaced.append(target);
        return true;
    }

    bool remove(const QString& path) override
    {
        const QMutexLocker lock(&m_mutex);
        return !isReadOnly() && m_disk.remove(path);
    }
    bool makeFolders(const QString& path) override
    {
        const QMutexLocker lock(&m_mutex);
        return !isReadOnly() && m_disk.makeFolders(path);
    }

    FileHold hold(const QString& path) override { return m_disk.hold(path); }
    bool syncFolder(const QString& path) override
    {
        const QMutexLocker lock(&m_mutex);
        m_synced.append(path);
        return !fails(failingSyncs, path) && m_disk.syncFolder(path);
    }
    WriteObstacle obstacleAt(const QString&, qint64 bytes) override
    {
        const QMutexLocker lock(&m_mutex);
        if (changesLeft < 0)
            return WriteObstacle::NotWritable;
        return bytesLeft < bytes || writesLeft == 0 ? WriteObstacle::DiskFull : WriteObstacle::None;
    }

private:
    /** Counts a change that is asked for. */
    bool isReadOnly()
    {
        if (changesLeft == always)
            return false;
        changesLeft = std::max(changesLeft - 1, -1);
        return changesLeft < 0;
    }

    static bool fails(QHash<QString, int>& faults, const QString& path)
    {
        const auto fault = faults.find(path);
        if (fault == faults.end() || fault.value() == 0)
            return false;
        if (fault.value() != always)
            --fault.value();
        return true;
    }

    DiskFileSystem m_disk;
    QMutex m_mutex;
    int m_writes = 0;
    int m_temporaries = 0;
    int m_mostTemporaries = 0;
    QHash<QString, QString> m_unsynced; ///< Temporaries and their targets.
    QStringList m_replaced;
    QStringList m_synced;
};

} // namespace tw::app::persistence
