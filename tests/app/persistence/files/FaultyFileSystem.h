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
    QSet<QString> unreadable;
    /** Whether all of a file system can be synced at once. */
    bool syncsTogether = true;
    /** The medium is full after so many bytes. */
    qint64 bytesLeft = std::numeric_limits<qint64>::max();

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
            if (fails(failingWrites, target) || bytesLeft < bytes.size())
                return std::nullopt;
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
        EXPECT_FALSE(m_unsynced.contains(temporary)) << "put in place before it is on the medium";
        if (fails(failingReplacements, target) || !m_disk.replace(temporary, target))
            return false;
        --m_temporaries;
        m_replaced.append(target);
        return true;
    }

    bool remove(const QString& path) override { return m_disk.remove(path); }
    bool makeFolders(const QString& path) override { return m_disk.makeFolders(path); }

    bool syncFolder(const QString& path) override
    {
        m_synced.append(path);
        return !fails(failingSyncs, path) && m_disk.syncFolder(path);
    }

private:
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
