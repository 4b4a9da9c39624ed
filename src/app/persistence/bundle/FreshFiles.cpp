#include "app/persistence/bundle/FreshFiles.h"

#include "app/persistence/files/ParallelFor.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <optional>
#include <vector>

namespace tw::app::persistence {

using core::Result;

namespace {

constexpr qsizetype filesAtOnce = 16;

/** The files of one call and their temporaries; those not put in place are removed. */
class FreshBatch
{
public:
    FreshBatch(const StorageEnvironment& environment, const QList<FileWrite>& files)
        : m_environment(environment)
        , m_files(files)
        , m_temporaries(static_cast<std::size_t>(files.size()))
    {}

    ~FreshBatch()
    {
        for (const std::optional<QString>& temporary : m_temporaries) {
            if (temporary)
                m_environment.fileSystem.remove(*temporary);
        }
    }
    Q_DISABLE_COPY_MOVE(FreshBatch)

    BatchOutcome run(const QString& root)
    {
        writeTemporaries();
        const auto missing = std::ranges::find_if(
            m_temporaries, [](const std::optional<QString>& temporary) { return !temporary; });
        if (missing != m_temporaries.end())
            return failureAt(missing - m_temporaries.begin());
        if (!m_environment.fileSystem.syncFileSystem(root)) {
            if (const std::optional<qsizetype> unsynced = syncEach())
                return failureAt(*unsynced);
        }
        for (qsizetype index = 0; index < m_files.size(); ++index) {
            if (!putInPlace(index))
                return failureAt(index);
        }
        return {m_files.size(), {}};
    }

private:
    [[nodiscard]] BatchOutcome failureAt(qsizetype index) const
    {
        return {index, writeFailure(m_files.at(index).path)};
    }

    /** Tries until it works or the policy is exhausted. */
    template <class Attempt>
    [[nodiscard]] bool isDone(const QString& path, Attempt attempt) const
    {
        return retryFileWrite(
                   [&]() -> Result<void> {
                       return attempt() ? Result<void>() : Result<void>(writeFailure(path));
                   },
                   m_environment.retryPolicy, m_environment.sleeper)
            .isOk();
    }

    void writeTemporaries()
    {
        parallelFor(m_files.size(), filesAtOnce, [this](qsizetype begin, qsizetype end) {
            for (qsizetype index = begin; index < end; ++index) {
                const FileWrite& file = m_files.at(index);
                std::optional<QString>& temporary = m_temporaries[static_cast<std::size_t>(index)];
                const bool isWritten = isDone(file.path, [&] {
                    temporary =
                        m_environment.fileSystem.writeTemporary(file.path, file.bytes, Durability::Cached);
                    return temporary.has_value();
                });
                if (!isWritten)
                    return;
            }
        });
    }

    /** The place of a file that could not be synced, or none. */
    std::optional<qsizetype> syncEach()
    {
        for (qsizetype index = 0; index < m_files.size(); ++index) {
            if (!m_environment.fileSystem.syncFile(*m_temporaries[static_cast<std::size_t>(index)]))
                return index;
        }
        return std::nullopt;
    }

    bool putInPlace(qsizetype index)
    {
        std::optional<QString>& temporary = m_temporaries[static_cast<std::size_t>(index)];
        const QString& target = m_files.at(index).path;
        if (!isDone(target, [&] { return m_environment.fileSystem.replace(*temporary, target); }))
            return false;
        temporary.reset();
        return true;
    }

    const StorageEnvironment& m_environment;
    const QList<FileWrite>& m_files;
    std::vector<std::optional<QString>> m_temporaries;
};

} // namespace

BatchOutcome writeFreshFiles(
    const StorageEnvironment& environment, const QString& root, const QList<FileWrite>& files)
{
    BatchOutcome outcome = FreshBatch(environment, files).run(root);
    if (!outcome.result)
        return outcome;
    QSet<QString> folders{root};
    for (const FileWrite& file : files)
        folders.insert(QFileInfo(file.path).path());
    for (const QString& folder : std::as_const(folders)) {
        if (!environment.fileSystem.syncFolder(folder))
            return {0, writeFailure(folder)};
    }
    return outcome;
}

} // namespace tw::app::persistence
