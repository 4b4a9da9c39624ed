#include "app/workspace/ExternalReview.h"

#include "app/persistence/ProjectLock.h"
#include "app/persistence/bundle/Backup.h"
#include "app/persistence/merge/MergeArchive.h"
#include "app/persistence/merge/MergeWriter.h"
#include "app/workspace/Workspace.h"

#include <QCoreApplication>
#include <QDateTime>

#include <algorithm>

namespace tw::app::workspace {

using core::Failure;
using core::Result;
using persistence::FileMerge;
using persistence::FileStanding;
using persistence::MergeWritten;
using persistence::ProjectFileMap;
using persistence::ProjectVersions;

namespace {

Failure failure(const char* text)
{
    return {QCoreApplication::translate("ExternalReview", text)};
}

Failure notWritten()
{
    return failure(QT_TRANSLATE_NOOP(
        "ExternalReview",
        "The resolved files could not be written; nothing was changed. Your project was backed up first."));
}

Failure partlyWritten()
{
    return failure(QT_TRANSLATE_NOOP(
        "ExternalReview", "Some merged changes could not be applied to the files on disk. Your project was "
                          "backed up first; reloading what is on disk now."));
}

Failure notWrittenBack()
{
    return failure(QT_TRANSLATE_NOOP(
        "ExternalReview",
        "The merged result could not be written back to the project file, so the file's own "
        "version will be loaded instead. Your project was backed up first."));
}

} // namespace

ExternalReview::ExternalReview(Workspace& workspace, TheirVersion theirs, ProjectVersions versions)
    : m_workspace(&workspace)
    , m_theirs(std::move(theirs))
    , m_merge(std::move(versions))
{}

Result<ExternalReview> ExternalReview::begin(Workspace& workspace)
{
    if (!workspace.hasPath()) {
        return failure(QT_TRANSLATE_NOOP(
            "ExternalReview",
            "Save the project first, then Vellory can check whether anything on disk changed outside the "
            "app."));
    }
    auto theirs = readTheirVersion(workspace);
    if (!theirs)
        return Failure{theirs.message()};
    ProjectVersions versions;
    versions.base = projectFilesOf(workspace.diskState());
    versions.mine =
        workspace.isModified() ? persistence::serializeProject(workspace.project()) : versions.base;
    versions.theirs = theirs.value().files;
    ExternalReview review(workspace, std::move(theirs).value(), std::move(versions));
    if (!review.m_merge.unreadable().isEmpty())
        return unreadableOnDisk(review.m_merge.unreadable().join(u", "));
    review.m_verdict = review.findVerdict();
    if (review.m_verdict == ReviewVerdict::Unchanged)
        review.acceptDisk();
    return review;
}

ReviewVerdict ExternalReview::findVerdict() const
{
    if (changedFileCount() == 0)
        return ReviewVerdict::Unchanged;
    if (!m_workspace->isModified())
        return ReviewVerdict::OnlyTheirs;
    if (m_merge.hasOpenConflicts())
        return ReviewVerdict::Conflicts;
    return m_merge.applied() ? ReviewVerdict::Mergeable : ReviewVerdict::NoWayTogether;
}

qsizetype ExternalReview::changedFileCount() const
{
    // A save would put all of an archive back to what is here, its media included.
    return std::ssize(m_merge.changes()) + (m_theirs.archive ? m_theirs.changedMedia : 0);
}

qsizetype ExternalReview::contestedFileCount() const
{
    return std::ranges::count_if(m_merge.changes(), [](const FileMerge& change) {
        return change.standing == FileStanding::Merged || change.standing == FileStanding::Conflict;
    });
}

void ExternalReview::acceptDisk()
{
    m_workspace->acceptDisk(m_theirs.seen);
    if (m_theirs.archive)
        m_workspace->acceptArchive(m_theirs.archive->state);
}

Result<void> ExternalReview::backUp() const
{
    const persistence::StorageEnvironment& environment = m_workspace->environment();
    const QString& folder = m_workspace->folderPath();
    const auto request = persistence::backupRequest(
        environment, m_workspace->displayPath(), folder,
        QDateTime::fromMSecsSinceEpoch(environment.clock() / 1'000'000));
    const auto theirs = m_theirs.archive
                            ? persistence::backupFiles(environment, request, m_theirs.archive->files)
                            : m_workspace->backup(request.timestamp);
    if (!theirs)
        return Failure{theirs.message()};
    if (!m_workspace->isModified())
        return {};
    // Nothing on disk holds what is unsaved here, which is just what may be given up.
    auto files = persistence::readAllFiles(environment.fileSystem, folder);
    if (!files)
        return Failure{files.message()};
    const auto mine = persistence::backupFiles(
        environment, request, persistence::withProjectFiles(std::move(files).value(), m_merge.mine()));
    return mine ? Result<void>() : Failure{mine.message()};
}

Result<void> ExternalReview::takeTheirs()
{
    if (m_workspace->isModified()) {
        if (auto backup = backUp(); !backup)
            return backup;
    }
    return m_workspace->reload();
}

Result<void> ExternalReview::keepMine()
{
    if (auto backup = backUp(); !backup)
        return backup;
    acceptDisk();
    QStringList paths;
    for (const FileMerge& change : m_merge.changes())
        paths.append(change.path);
    m_workspace->overwriteAtNextSave(paths);
    return {};
}

Result<void> ExternalReview::applyMerge()
{
    // Asked first: once the files are written, the project has to be read anew.
    if (auto possible = m_workspace->checkReload(); !possible)
        return possible;
    const auto merged = m_merge.applied();
    if (!merged)
        return Failure{merged.message()};
    if (auto backup = backUp(); !backup)
        return backup;
    const Result<Written> written = write(merged.value());
    if (!written)
        return Failure{written.message()};
    // Also after a failure that came so far: what is unsaved lies in the backup, and what is on disk now must
    // not be taken for the old baseline.
    if (auto reloaded = m_workspace->reload(); !reloaded)
        return reloaded;
    switch (written.value()) {
    case Written::Partly:
        return partlyWritten();
    case Written::NotIntoArchive:
        return notWrittenBack();
    case Written::Completely:
        break;
    }
    return {};
}

Result<ExternalReview::Written> ExternalReview::write(const ProjectFileMap& merged)
{
    const persistence::StorageEnvironment& environment = m_workspace->environment();
    const QString& place = m_workspace->displayPath();
    const auto lock = persistence::ProjectLock::acquire(place, environment.dataFolder);
    if (!lock)
        return Failure{lock.message()};
    if (m_theirs.archive) {
        const auto files = persistence::withProjectFiles(m_theirs.archive->files, merged);
        const bool isWritten =
            persistence::writeMergedArchive(environment, place, m_theirs.archive->state, files).isOk();
        return isWritten ? Written::Completely : Written::NotIntoArchive;
    }
    switch (persistence::writeMergedProject(
        environment, m_workspace->folderPath(), m_merge.theirs(), merged, m_theirs.seen)) {
    case MergeWritten::NotAtAll:
        return notWritten();
    case MergeWritten::Partly:
        return Written::Partly;
    case MergeWritten::Completely:
        break;
    }
    return Written::Completely;
}

} // namespace tw::app::workspace
