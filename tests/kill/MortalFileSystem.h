// A disk under a program that dies.
#pragma once

#include "app/persistence/files/FileSystem.h"

#include <QHash>
#include <QMutex>
#include <QSet>

#include <optional>
#include <random>
#include <vector>

namespace tw::test {

/** What goes with the program. */
enum class Death
{
    OfTheProgram, ///< All it wrote stays.
    OfThePower,   ///< Of what it did not sync, any part may be lost.
};

/**
 * The real file system until a given operation, at which the process kills itself: before the operation,
 * behind it, or with half of the bytes written. Operations come one after another.
 */
class MortalFileSystem final : public app::persistence::FileSystem
{
public:
    struct Plan
    {
        qint64 lastOperation = 0; ///< Counted from 1; 0 for never.
        Death death = Death::OfTheProgram;
        quint32 seed = 0;
    };

    explicit MortalFileSystem(const Plan& plan);

    /** A file that was put in place before its bytes were on the medium; empty when all was done right. */
    [[nodiscard]] QString unsyncedFile();

    std::optional<app::persistence::FileContent> readFile(const QString& path) override;
    std::optional<app::persistence::FileStamp> stamp(const QString& path) override;
    std::optional<QString> writeTemporary(
        const QString& target, const QByteArray& bytes, app::persistence::Durability durability) override;
    bool syncFile(const QString& path) override;
    bool syncFileSystem(const QString& folder) override;
    bool replace(const QString& temporary, const QString& target) override;
    bool remove(const QString& path) override;
    bool makeFolders(const QString& path) override;
    app::persistence::WriteObstacle obstacleAt(const QString& folder, qint64 bytes) override
    {
        return m_disk.obstacleAt(folder, bytes);
    }
    app::persistence::FileHold hold(const QString& path) override { return m_disk.hold(path); }
    bool syncFolder(const QString& path) override;

private:
    /** A name that the medium does not know yet. */
    struct UnsyncedName
    {
        QString path;
        std::optional<QByteArray> earlier; ///< What the name stood for.
    };

    enum class Moment
    {
        Before,
        Amid,
        Behind,
    };

    /** Counts one operation; tells when in it the end comes. */
    [[nodiscard]] std::optional<Moment> begin();
    void noteName(const QString& path);
    [[noreturn]] void die();
    void loseUnsyncedNames();
    void loseUnsyncedEnds();

    const Plan m_plan;
    app::persistence::DiskFileSystem m_disk;
    QMutex m_mutex;
    std::mt19937 m_random;
    qint64 m_operations = 0;
    QSet<QString> m_unsyncedFiles;
    std::vector<UnsyncedName> m_unsyncedNames;
    /** Files that grow in place, and how much of them is on the medium. */
    QHash<QString, qint64> m_syncedSizes;
    QString m_unsyncedFile;
};

} // namespace tw::test
