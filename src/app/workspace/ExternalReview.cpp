#include "app/workspace/ExternalReview.h"

#include "app/persistence/ProjectLock.h"
#include "app/persistence/bundle/Backup.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "app/persistence/files/JsonFile.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/persistence/merge/MergeWriter.h"
#include "app/workspace/Workspace.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>

#include <algorithm>

namespace tw::app::workspace {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using persistence::DiskChanges;
using persistence::DiskState;
using persistence::FileMerge;
using persistence::FileStanding;
using persistence::MergeWritten;
using persistence::ProjectFileMap;
using persistence::ProjectVersions;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("ExternalReview", text);
}

/** The files on disk are in no state to be reviewed; the detail says which and why. */
Failure unreadable(const QString& detail)
{
    return {
        translated(QT_TRANSLATE_NOOP(
                       "ExternalReview",
                       "The files on disk cannot be read as a project right now: %1. Nothing was changed. "
                       "If a sync client is still at work, wait until it is done, then check again."))
            .arg(detail)};
}

Failure notWritten()
{
    return {translated(QT_TRANSLATE_NOOP(
        "ExternalReview",
        "The resolved files could not be written; nothing was changed. Your project was backed up first."))};
}

Failure partlyWritten()
{
    return {translated(QT_TRANSLATE_NOOP(
        "ExternalReview", "Some merged changes could not be applied to the files on disk. Your project was "
                          "backed up first; reloading what is on disk now."))};
}

ProjectFileMap projectFilesOf(const DiskState& state)
{
    ProjectFileMap files;
    for (const QString& path : state.paths()) {
        if (persistence::isProjectFile(path))
            files.emplace(path, state.bytes(path));
    }
    return files;
}

/**
 * Brings `state` and the project files `files`, which held the same, up to what the folder holds now. Files
 * that are none of the project's only guard a save, so that it is enough to take note of them.
 */
Result<void> readChanges(
    persistence::FileSystem& fileSystem, const QString& folder, DiskState& state, ProjectFileMap& files)
{
    const DiskChanges changes = state.changesIn(folder);
    if (!changes.unreadableFolders.isEmpty()) {
        return unreadable(QDir::toNativeSeparators(folder + u'/' + changes.unreadableFolders.first()));
    }
    for (const QString& path : changes.added + changes.changed) {
        if (!persistence::isProjectFile(path)) {
            state.recordFile(folder, path);
            continue;
        }
        const auto content = fileSystem.readFile(folder + u'/' + path);
        if (!content)
            return unreadable(path);
        files.insert_or_assign(path, content->bytes);
        state.record(path, content->bytes, content->stamp);
    }
    for (const QString& path : changes.removed) {
        files.erase(path);
        state.forget(path);
    }
    // Without it there is no project: a folder that is not there, or not all of it yet.
    if (!files.contains(persistence::projectFileName.toString()))
        return unreadable(persistence::projectFileName.toString());
    return {};
}

/** The project's name with what file systems do not take left out. */
QString fileNameOf(const QString& name)
{
    QString safe;
    for (const QChar character : name)
        safe += character.isLetterOrNumber() || u" -_"_s.contains(character) ? character : QChar(u'_');
    safe = safe.trimmed().left(64);
    return safe.isEmpty() ? u"project"_s : safe;
}

} // namespace

ExternalReview::ExternalReview(Workspace& workspace, DiskState seen, ProjectVersions versions)
    : m_workspace(&workspace)
    , m_seen(std::move(seen))
    , m_merge(std::move(versions))
{}

Result<ExternalReview> ExternalReview::begin(Workspace& workspace)
{
    if (!workspace.hasPath()) {
        return Failure{translated(QT_TRANSLATE_NOOP(
            "ExternalReview",
            "Save the project first, then Vellory can check whether anything on disk changed outside the "
            "app."))};
    }
    DiskState seen = workspace.diskState();
    ProjectVersions versions;
    versions.base = projectFilesOf(seen);
    versions.theirs = versions.base;
    if (auto read =
            readChanges(workspace.environment().fileSystem, workspace.folderPath(), seen, versions.theirs);
        !read)
        return Failure{read.message()};
    const bool isModified = workspace.isModified();
    versions.mine = isModified ? persistence::serializeProject(workspace.project()) : versions.base;

    ExternalReview review(workspace, std::move(seen), std::move(versions));
    review.m_changedMedia = workspace.assetStamps().changesIn(workspace.folderPath());
    if (!review.m_merge.unreadable().isEmpty())
        return unreadable(review.m_merge.unreadable().join(u", "));
    if (review.m_merge.changes().empty())
        workspace.acceptDisk(review.m_seen);
    else if (!isModified)
        review.m_verdict = ReviewVerdict::OnlyTheirs;
    else if (review.m_merge.hasOpenConflicts())
        review.m_verdict = ReviewVerdict::Conflicts;
    else
        review.m_verdict = review.m_merge.applied() ? ReviewVerdict::Mergeable : ReviewVerdict::NoWayTogether;
    return review;
}

qsizetype ExternalReview::contestedFileCount() const
{
    return std::ranges::count_if(m_merge.changes(), [](const FileMerge& change) {
        return change.standing == FileStanding::Merged || change.standing == FileStanding::Conflict;
    });
}

Result<void> ExternalReview::backUp() const
{
    const persistence::StorageEnvironment& environment = m_workspace->environment();
    persistence::BackupRequest request;
    request.folder = m_workspace->folderPath();
    request.name = fileNameOf(m_workspace->displayName());
    request.backupsFolder = environment.dataFolder + u"/backups/"_s + request.name;
    request.timestamp = QDateTime::fromMSecsSinceEpoch(environment.clock() / 1'000'000);
    if (const auto backup = persistence::backupProject(environment, request); !backup)
        return Failure{backup.message()};
    if (!m_workspace->isModified())
        return {};
    // The folder holds nothing of what is unsaved here, which is just what may be given up.
    request.projectFiles = m_merge.mine();
    if (const auto backup = persistence::backupProject(environment, request); !backup)
        return Failure{backup.message()};
    return {};
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
    QStringList paths;
    for (const FileMerge& change : m_merge.changes())
        paths.append(change.path);
    m_workspace->keepOverDisk(m_seen, paths);
    return {};
}

Result<void> ExternalReview::applyMerge()
{
    // Asked first: once the files are written, the project has to be read anew.
    if (auto possible = m_workspace->checkReload(); !possible)
        return possible;
    auto merged = m_merge.applied();
    if (!merged)
        return Failure{merged.message()};
    if (auto backup = backUp(); !backup)
        return backup;
    const persistence::StorageEnvironment& environment = m_workspace->environment();
    const auto lock = persistence::ProjectLock::acquire(m_workspace->displayPath(), environment.dataFolder);
    if (!lock)
        return Failure{lock.message()};
    switch (persistence::writeMergedProject(
        environment, m_workspace->folderPath(), m_merge.theirs(), merged.value(), m_seen)) {
    case MergeWritten::Completely:
        return m_workspace->reload();
    case MergeWritten::NotAtAll:
        return notWritten();
    case MergeWritten::Partly:
        break;
    }
    // What is unsaved lies in the backup, and a mixture on disk must not be taken for the old baseline.
    if (const auto reloaded = m_workspace->reload(); !reloaded)
        return Failure{reloaded.message()};
    return partlyWritten();
}

} // namespace tw::app::workspace
