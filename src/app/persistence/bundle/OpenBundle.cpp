#include "app/persistence/bundle/OpenBundle.h"

#include "app/persistence/bundle/Backup.h"
#include "app/persistence/files/ParallelFor.h"
#include "app/persistence/files/SafeWriter.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <atomic>
#include <chrono>

namespace tw::app::persistence {

using core::Failure;
using core::Result;

namespace {

constexpr qsizetype filesAtOnce = 32;

QString translated(const char* text)
{
    return QCoreApplication::translate("Persistence", text);
}

/** One opening; for a single use. */
class Opening
{
public:
    Opening(const StorageEnvironment& environment, const QString& bundlePath, BundlePurpose purpose)
        : m_environment(environment)
        , m_copy(workingCopyOf(bundlePath, environment.dataFolder))
        , m_purpose(purpose)
    {}

    Result<OpenedBundle> run()
    {
        if (auto read = readFromArchive(); !read)
            return Failure{read.message()};
        // A program that was killed while it wrote the archive leaves one beside it.
        removeAbandonedTemporaries(
            m_environment.fileSystem, QFileInfo(m_copy.bundlePath).path(), m_environment.clock());
        const Result<std::vector<ListedFile>> listed = listCopy();
        if (!listed)
            return workingFolderFailure(listed.message());
        if (listed.value().empty())
            return unpack(BundleOpening::Unpacked, {});

        Result<LoadedProject> loaded = loadProject(m_environment.fileSystem, m_copy.folder);
        const QByteArray recorded = recordedHash(m_environment.fileSystem, m_copy);
        const bool isRecorded = recorded == m_known.hash;
        if (isSameAsArchive(listed.value(), loaded))
            return loaded ? finish(std::move(loaded).value(), BundleOpening::Intact, {})
                          : Failure{loaded.message()};
        if (isRecorded && loaded)
            return restore(std::move(loaded).value());
        if (isRecorded)
            return replaceCopy(BundleOpening::SetAside);
        return replaceCopy(recorded.isEmpty() ? BundleOpening::Disowned : BundleOpening::Replaced);
    }

private:
    Result<void> readFromArchive()
    {
        const Result<FileContent> archive = readArchive(m_environment.fileSystem, m_copy.bundlePath);
        if (!archive)
            return unreadable(archive.message());
        Result<BundleContents> contents = readBundle(archive.value().bytes, m_copy.bundlePath);
        if (!contents)
            return unreadable(contents.message());
        m_archived = std::move(contents).value();
        m_known.stamp = archive.value().stamp;
        m_known.hash = bundleHash(archive.value().bytes);
        return {};
    }

    /** A project that is open waits for a sync client to end its work on the file. */
    [[nodiscard]] Failure unreadable(const QString& message) const
    {
        if (m_purpose == BundlePurpose::Open)
            return {message};
        return {translated(
            QT_TRANSLATE_NOOP("Persistence", "The project file is not readable right now; try again."))};
    }

    [[nodiscard]] Failure workingFolderFailure(const QString& message) const
    {
        const char* const text =
            m_purpose == BundlePurpose::Open
                ? QT_TRANSLATE_NOOP("Persistence", "Could not prepare the project's working folder: %1")
                : QT_TRANSLATE_NOOP("Persistence", "Could not refresh the project's working folder: %1");
        return {translated(text).arg(message)};
    }

    [[nodiscard]] Result<std::vector<ListedFile>> listCopy() const
    {
        return QFileInfo(m_copy.folder).isDir() ? listVisibleFiles(m_copy.folder) : std::vector<ListedFile>();
    }

    /** Compares contents, and indexes the archive by the files that hold the same. */
    bool isSameAsArchive(const std::vector<ListedFile>& listed, const Result<LoadedProject>& loaded)
    {
        const QList<BundleFile>& archived = m_archived.files;
        const bool hasSamePaths =
            std::ranges::equal(listed, archived, {}, &ListedFile::path, &BundleFile::path);
        if (!hasSamePaths)
            return false;
        QHash<QStringView, const LoadedFile*> known;
        if (loaded) {
            for (const LoadedFile& file : loaded.value().files)
                known.insert(file.relativePath, &file);
        }
        const qint64 now = m_environment.clock();
        m_known.index.resize(listed.size());
        std::atomic<bool> isSame = true;
        parallelFor(archived.size(), filesAtOnce, [&](qsizetype begin, qsizetype end) {
            for (qsizetype index = begin; index < end && isSame; ++index) {
                const BundleFile& file = archived.at(index);
                const auto slot = static_cast<std::size_t>(index);
                std::optional<FileStamp> stamp;
                if (const LoadedFile* const here = known.value(file.path))
                    stamp = here->bytes == file.bytes ? std::optional(here->stamp) : std::nullopt;
                else
                    stamp = stampOfSame(file);
                if (!stamp)
                    isSame = false;
                else
                    m_known.index[slot] = {
                        file.path, *stamp, isSettled(*stamp, now), m_archived.places[slot],
                        file.bytes.size()};
            }
        });
        return isSame;
    }

    /** The stamp of the copy's file, if that holds these bytes. */
    [[nodiscard]] std::optional<FileStamp> stampOfSame(const BundleFile& file) const
    {
        const auto content = m_environment.fileSystem.readFile(m_copy.folder + u'/' + file.path);
        return content && content->bytes == file.bytes ? std::optional(content->stamp) : std::nullopt;
    }

    Result<OpenedBundle> restore(LoadedProject project)
    {
        const Result<Backup> backup = backUp(m_archived.files);
        if (!backup)
            return Failure{backup.message()};
        // Nothing is known of an index that fits: all of the archive is made anew.
        m_known.index.clear();
        SingleFile file(m_environment, m_copy, m_known);
        if (auto written = file.writeArchiveOf(m_copy.folder); !written) {
            return Failure{
                translated(QT_TRANSLATE_NOOP(
                               "Persistence", "Could not restore unsaved changes into the project file: %1"))
                    .arg(written.message())};
        }
        if (auto recorded = file.updateRecord(); !recorded)
            return workingFolderFailure(recorded.message());
        return OpenedBundle{
            std::move(file), std::move(project), BundleOpening::Restored, backup.value().path};
    }

    Result<OpenedBundle> replaceCopy(BundleOpening opening)
    {
        const Result<QList<BundleFile>> files = readAllFiles(m_environment.fileSystem, m_copy.folder);
        if (!files)
            return workingFolderFailure(files.message());
        const Result<Backup> backup = backUp(files.value());
        if (!backup)
            return Failure{backup.message()};
        return unpack(opening, backup.value().path);
    }

    [[nodiscard]] Result<Backup> backUp(const QList<BundleFile>& files) const
    {
        const std::chrono::nanoseconds now(m_environment.clock());
        const QDateTime timestamp = QDateTime::fromMSecsSinceEpoch(
            std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
        return backupFiles(
            m_environment, backupRequest(m_environment, m_copy.bundlePath, m_copy.folder, timestamp), files);
    }

    /** The present copy, if any, gives way only when all is unpacked. */
    Result<OpenedBundle> unpack(BundleOpening opening, const QString& backupPath)
    {
        // What cannot be read must not take the place of a copy that somebody has open.
        if (m_purpose == BundlePurpose::Reload) {
            ProjectFileMap files;
            for (const BundleFile& file : m_archived.files)
                files.emplace(file.path, file.bytes);
            if (const auto parsed = parseProject(files); !parsed)
                return Failure{parsed.message()};
        }
        if (auto unpacked = unpackFreshCopy(m_environment, m_copy, m_archived.files); !unpacked)
            return workingFolderFailure(unpacked.message());
        if (auto retired = retireCopy(m_environment, m_copy); !retired)
            return Failure{retired.message()};
        if (auto installed = installFreshCopy(m_environment, m_copy); !installed)
            return workingFolderFailure(installed.message());
        Result<LoadedProject> loaded = loadProject(m_environment.fileSystem, m_copy.folder);
        if (!loaded)
            return Failure{loaded.message()};
        indexUnpacked();
        return finish(std::move(loaded).value(), opening, backupPath);
    }

    /** Files just written have no stamp yet that vouches for them: the next save reads and compares them. */
    void indexUnpacked()
    {
        m_known.index.clear();
        for (std::size_t index = 0; index < m_archived.places.size(); ++index) {
            const BundleFile& file = m_archived.files.at(static_cast<qsizetype>(index));
            m_known.index.push_back({file.path, {}, false, m_archived.places[index], file.bytes.size()});
        }
    }

    Result<OpenedBundle> finish(LoadedProject project, BundleOpening opening, const QString& backupPath)
    {
        SingleFile file(m_environment, m_copy, std::move(m_known));
        if (auto recorded = file.updateRecord(); !recorded)
            return workingFolderFailure(recorded.message());
        return OpenedBundle{std::move(file), std::move(project), opening, backupPath};
    }

    const StorageEnvironment& m_environment;
    const WorkingCopy m_copy;
    const BundlePurpose m_purpose;
    BundleContents m_archived;
    ArchiveState m_known;
};

} // namespace

Result<OpenedBundle> openBundle(
    const StorageEnvironment& environment, const QString& bundlePath, BundlePurpose purpose)
{
    return Opening(environment, bundlePath, purpose).run();
}

} // namespace tw::app::persistence
