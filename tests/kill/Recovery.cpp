#include "kill/Recovery.h"

#include "app/persistence/codec/ProjectLoader.h"
#include "app/persistence/journal/JournalRestore.h"

#include <QCryptographicHash>

namespace tw::test {

using app::persistence::AbandonedJournal;
using app::persistence::CrashJournal;
using app::persistence::FileVersion;
using app::persistence::JournalEdit;
using app::workspace::Workspace;
using core::Failure;
using core::Result;

namespace {

constexpr qsizetype digitsOfAHash = 16;

FileVersion onDisk(const Workspace& workspace, const QString& path)
{
    const auto& disk = workspace.diskState();
    return disk.contains(path) ? FileVersion(disk.bytes(path)) : FileVersion();
}

} // namespace

Result<OpenedProject> openAndRecover(
    const app::persistence::StorageEnvironment& environment, const QString& projectPath)
{
    auto workspace = Workspace::open(environment, projectPath);
    if (!workspace)
        return Failure{workspace.message()};
    OpenedProject opened{std::move(workspace).value(), {}, 0, {}};
    const QString& place = opened.workspace->displayPath();
    auto journals = AbandonedJournal::find(environment, place);
    opened.abandonedJournals = std::ssize(journals);
    const auto restore = app::persistence::planRestore(
        journals, [&](const QString& path) { return onDisk(*opened.workspace, path); });
    opened.overridden = restore.overridden;
    if (!restore.isEmpty()) {
        if (auto restored = opened.workspace->restoreUnsaved(restore.files); !restored)
            return Failure{restored.message()};
    }

    opened.journal = std::make_unique<CrashJournal>(environment, place);
    QList<JournalEdit> edits;
    for (const auto& [path, bytes] : restore.files)
        edits.append({path, onDisk(*opened.workspace, path), bytes, {}});
    opened.journal->append(std::move(edits));
    if (auto noted = opened.journal->flush(); !noted)
        return Failure{noted.message()};
    for (AbandonedJournal& journal : journals)
        journal.remove();
    return opened;
}

FileHashes hashesOf(const app::persistence::ProjectFileMap& files)
{
    const auto read = app::persistence::parseProject(files);
    FileHashes hashes;
    if (!read)
        return hashes;
    for (const auto& [path, bytes] : app::persistence::serializeProject(*read.value().project))
        hashes.emplace(
            path, QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().first(digitsOfAHash));
    return hashes;
}

FileHashes hashesOf(const Workspace& workspace)
{
    return hashesOf(app::persistence::serializeProject(workspace.project()));
}

} // namespace tw::test
