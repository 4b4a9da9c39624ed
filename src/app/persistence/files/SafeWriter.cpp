#include "app/persistence/files/SafeWriter.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMutex>
#include <QThreadPool>
#include <QWaitCondition>

#include <algorithm>
#include <vector>

namespace tw::app::persistence {

namespace {

constexpr int preparingThreads = 8;
/** Temporary files that may stand prepared ahead of the one being replaced. */
constexpr qsizetype preparedAhead = 256;

} // namespace

core::Failure writeFailure(const QString& path)
{
    return {
        QCoreApplication::translate(
            "Persistence",
            "Could not write '%1' (it may be locked by another program -- the desktop app, a sync client, or "
            "antivirus).")
            .arg(path)};
}

/** The temporary files of one batch, made ahead on a pool while the calling thread takes them in order. */
class SafeWriter::Batch
{
public:
    Batch(const SafeWriter& writer, const QList<FileWrite>& files)
        : m_writer(writer)
        , m_files(files)
        , m_prepared(static_cast<std::size_t>(files.size()))
    {
        m_pool.setMaxThreadCount(preparingThreads);
        const qsizetype threads = std::min<qsizetype>(preparingThreads, files.size());
        for (qsizetype thread = 0; thread < threads; ++thread)
            m_pool.start([this] { prepareFiles(); });
    }

    ~Batch()
    {
        {
            const QMutexLocker lock(&m_mutex);
            m_isStopped = true;
            m_roomMade.wakeAll();
        }
        m_pool.waitForDone();
        for (const std::optional<core::Result<QString>>& temporary : m_prepared) {
            if (temporary && temporary->isOk())
                m_writer.m_fileSystem.remove(temporary->value());
        }
    }
    Q_DISABLE_COPY_MOVE(Batch)

    /** Waits for the temporary of the next file; from here on it is the caller's. */
    core::Result<QString> take(qsizetype index)
    {
        const QMutexLocker lock(&m_mutex);
        m_taken = index + 1;
        m_roomMade.wakeOne();
        std::optional<core::Result<QString>>& slot = m_prepared[static_cast<std::size_t>(index)];
        while (!slot)
            m_awaitedCame.wait(&m_mutex);
        core::Result<QString> temporary = std::move(*slot);
        slot.reset();
        return temporary;
    }

private:
    void prepareFiles()
    {
        QMutexLocker lock(&m_mutex);
        while (!m_isStopped && m_next < m_files.size()) {
            if (m_next >= m_taken + preparedAhead) {
                m_roomMade.wait(&m_mutex);
                continue;
            }
            const qsizetype index = m_next++;
            lock.unlock();
            core::Result<QString> temporary = m_writer.prepare(m_files.at(index));
            lock.relock();
            m_prepared[static_cast<std::size_t>(index)].emplace(std::move(temporary));
            // Waking threads for nothing would cost more than a fast medium takes for the file.
            if (index == m_taken - 1)
                m_awaitedCame.wakeOne();
        }
    }

    const SafeWriter& m_writer;
    const QList<FileWrite>& m_files;
    QMutex m_mutex;               ///< Guards all that follows, but for the pool.
    QWaitCondition m_roomMade;    ///< For the threads that prepare.
    QWaitCondition m_awaitedCame; ///< For the calling thread, which waits for the file last asked for.
    std::vector<std::optional<core::Result<QString>>> m_prepared;
    qsizetype m_next = 0;  ///< The first file that no thread has begun.
    qsizetype m_taken = 0; ///< How many the calling thread has asked for.
    bool m_isStopped = false;
    QThreadPool m_pool;
};

SafeWriter::SafeWriter(FileSystem& fileSystem, RetryPolicy policy, Sleeper sleeper)
    : m_fileSystem(fileSystem)
    , m_policy(policy)
    , m_sleeper(std::move(sleeper))
{}

BatchOutcome SafeWriter::writeAll(const QList<FileWrite>& files, const BeforeCommit& beforeCommit)
{
    BatchOutcome outcome;
    if (files.size() == 1) {
        outcome.result = write(files.first(), beforeCommit);
        outcome.committed = outcome.result ? 1 : 0;
        return outcome;
    }
    Batch batch(*this, files);
    for (; outcome.committed < files.size(); ++outcome.committed) {
        const qsizetype index = outcome.committed;
        const core::Result<QString> temporary = batch.take(index);
        if (!temporary)
            outcome.result = core::Failure{temporary.message()};
        else
            outcome.result = commit(temporary.value(), files.at(index).path, [&] {
                return beforeCommit ? beforeCommit(index) : core::Result<void>();
            });
        if (!outcome.result)
            break;
    }
    return outcome;
}

core::Result<void> SafeWriter::write(const FileWrite& file, const BeforeCommit& beforeCommit)
{
    const core::Result<QString> temporary = prepare(file);
    if (!temporary)
        return core::Failure{temporary.message()};
    return commit(
        temporary.value(), file.path, [&] { return beforeCommit ? beforeCommit(0) : core::Result<void>(); });
}

bool SafeWriter::remove(const QString& path)
{
    m_changedFolders.insert(QFileInfo(path).path());
    return m_fileSystem.remove(path);
}

core::Result<void> SafeWriter::syncFolders()
{
    core::Result<void> result;
    for (const QString& folder : std::exchange(m_changedFolders, {})) {
        if (!m_fileSystem.syncFolder(folder) && result)
            result = writeFailure(folder);
    }
    return result;
}

core::Result<QString> SafeWriter::prepare(const FileWrite& file) const
{
    std::optional<QString> temporary;
    const core::Result<void> result = retryFileWrite(
        [&]() -> core::Result<void> {
            temporary = m_fileSystem.writeTemporary(file.path, file.bytes);
            if (!temporary)
                return writeFailure(file.path);
            return {};
        },
        m_policy, m_sleeper);
    if (!result)
        return core::Failure{result.message()};
    return *temporary;
}

core::Result<void> SafeWriter::commit(
    const QString& temporary, const QString& target, const std::function<core::Result<void>()>& check)
{
    core::Result<void> result = check();
    if (result) {
        result = retryFileWrite(
            [&]() -> core::Result<void> {
                if (!m_fileSystem.replace(temporary, target))
                    return writeFailure(target);
                return {};
            },
            m_policy, m_sleeper);
    }
    if (result)
        m_changedFolders.insert(QFileInfo(target).path());
    else
        m_fileSystem.remove(temporary);
    return result;
}

} // namespace tw::app::persistence
