#include "app/persistence/files/SafeWriter.h"

#include "app/persistence/files/ParallelFor.h"
#include "app/persistence/files/PlatformFiles.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFileInfo>
#include <QThreadPool>

#include <algorithm>
#include <chrono>
#include <optional>
#include <span>
#include <vector>

namespace tw::app::persistence {

namespace {

/** Temporary files that may lie beside their targets, and files held open, at any time. */
constexpr qsizetype filesInAChunk = 512;
constexpr qsizetype filesOfAThread = 16;
/** More than there are processors: they wait for the medium. */
constexpr int syncingThreads = 4;
/** No write takes this long. */
constexpr std::chrono::nanoseconds abandonedAfter = std::chrono::hours(24);

} // namespace

void removeAbandonedTemporaries(FileSystem& fileSystem, const QString& folder, qint64 now)
{
    QDirIterator temporaries(
        folder, {platform::temporaryPrefix + u'*'}, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    while (temporaries.hasNext()) {
        const QString path = temporaries.next();
        const std::optional<FileStamp> stamp = fileSystem.stamp(path);
        if (stamp && stamp->mtimeNs < now - abandonedAfter.count())
            fileSystem.remove(path);
    }
}

core::Failure writeFailure(const QString& path)
{
    return {
        QCoreApplication::translate(
            "Persistence",
            "Could not write '%1' (it may be locked by another program -- the desktop app, a sync client, or "
            "antivirus).")
            .arg(path)};
}

/** Some files of a batch, with their temporaries, all on the medium or failed. Removes those not taken. */
class SafeWriter::Chunk
{
public:
    Chunk(const SafeWriter& writer, std::span<const FileWrite> files)
        : m_writer(writer)
        , m_files(files)
        , m_temporaries(files.size())
    {
        parallelFor(std::ssize(files), filesOfAThread, [this](qsizetype begin, qsizetype end) {
            for (auto index = static_cast<std::size_t>(begin); index < static_cast<std::size_t>(end); ++index)
                m_temporaries[index] = m_writer.prepare(m_files[index], Durability::Cached);
        });
        syncEach();
    }

    ~Chunk()
    {
        parallelFor(std::ssize(m_replaced), filesOfAThread, [this](qsizetype begin, qsizetype end) {
            std::ranges::fill(
                std::span(m_replaced)
                    .subspan(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin)),
                nullptr);
        });
        for (const std::optional<core::Result<QString>>& temporary : m_temporaries) {
            if (temporary && temporary->isOk())
                m_writer.m_fileSystem.remove(temporary->value());
        }
    }
    Q_DISABLE_COPY_MOVE(Chunk)

    /**
     * Before the file is replaced: what becomes free of its old state is given back on several threads, when
     * all are replaced. One after another that takes several times as long as replacing them.
     */
    void holdTarget(std::size_t index)
    {
        m_replaced.push_back(m_writer.m_fileSystem.hold(m_files[index].path));
    }

    /** From here on the temporary is the caller's. */
    core::Result<QString> take(std::size_t index)
    {
        core::Result<QString> temporary = std::move(*m_temporaries[index]);
        m_temporaries[index].reset();
        return temporary;
    }

private:
    /** By now most of the bytes are on their way, and the first sync takes the names of all files along. */
    void syncEach()
    {
        QThreadPool pool;
        pool.setMaxThreadCount(syncingThreads);
        for (std::size_t index = 0; index < m_files.size(); ++index) {
            core::Result<QString>& temporary = *m_temporaries[index];
            if (!temporary)
                continue;
            pool.start([this, &temporary, index] {
                const auto synced = m_writer.sync(temporary.value(), m_files[index].path);
                if (!synced)
                    temporary = core::Failure{synced.message()};
            });
        }
        pool.waitForDone();
    }

    const SafeWriter& m_writer;
    const std::span<const FileWrite> m_files;
    std::vector<std::optional<core::Result<QString>>> m_temporaries;
    std::vector<FileHold> m_replaced;
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
    const std::span<const FileWrite> all(files);
    while (outcome.result && outcome.committed < files.size()) {
        const qsizetype first = outcome.committed;
        const qsizetype count = std::min(filesInAChunk, files.size() - first);
        Chunk chunk(*this, all.subspan(static_cast<std::size_t>(first), static_cast<std::size_t>(count)));
        for (qsizetype index = first; index < first + count; ++index) {
            const auto place = static_cast<std::size_t>(index - first);
            chunk.holdTarget(place);
            const core::Result<QString> temporary = chunk.take(place);
            if (!temporary)
                outcome.result = core::Failure{temporary.message()};
            else
                outcome.result = commit(temporary.value(), files.at(index).path, [&] {
                    return beforeCommit ? beforeCommit(index) : core::Result<void>();
                });
            if (!outcome.result)
                break;
            ++outcome.committed;
        }
    }
    return outcome;
}

core::Result<void> SafeWriter::write(const FileWrite& file, const BeforeCommit& beforeCommit)
{
    const core::Result<QString> temporary = prepare(file, Durability::OnMedium);
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

core::Result<QString> SafeWriter::prepare(const FileWrite& file, Durability durability) const
{
    std::optional<QString> temporary;
    const core::Result<void> result = retryFileWrite(
        [&]() -> core::Result<void> {
            temporary = m_fileSystem.writeTemporary(file.path, file.bytes, durability);
            if (!temporary)
                return writeFailure(file.path);
            return {};
        },
        m_policy, m_sleeper);
    if (!result)
        return core::Failure{result.message()};
    return *temporary;
}

core::Result<void> SafeWriter::sync(const QString& temporary, const QString& target) const
{
    core::Result<void> result = retryFileWrite(
        [&]() -> core::Result<void> {
            if (!m_fileSystem.syncFile(temporary))
                return writeFailure(target);
            return {};
        },
        m_policy, m_sleeper);
    if (!result)
        m_fileSystem.remove(temporary);
    return result;
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
