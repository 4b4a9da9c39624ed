// Opening a project the way the program does after a crash.
#pragma once

#include "app/persistence/codec/ProjectWriter.h"
#include "app/persistence/journal/CrashJournal.h"
#include "app/workspace/Workspace.h"

#include <QStringList>

#include <map>
#include <memory>

namespace tw::test {

struct OpenedProject
{
    std::unique_ptr<app::workspace::Workspace> workspace;
    /** Of the edits that are unsaved now, those from before the crash included. */
    std::unique_ptr<app::persistence::CrashJournal> journal;
    qsizetype abandonedJournals = 0;
    /** Files whose journaled edits did not go together with what is on disk. */
    QStringList overridden;
};

/** Opens the project, brings back what journals tell of, and notes that in a journal of its own. */
[[nodiscard]] core::Result<OpenedProject> openAndRecover(
    const app::persistence::StorageEnvironment& environment, const QString& projectPath);

/** What the project's files hold, told by a hash: path to hexadecimal digits. */
using FileHashes = std::map<QString, QByteArray>;
/**
 * The files as they are after reading: some edits have more than one form, as a list with an empty place in
 * it.
 */
[[nodiscard]] FileHashes hashesOf(const app::persistence::ProjectFileMap& files);
[[nodiscard]] FileHashes hashesOf(const app::workspace::Workspace& workspace);

/** Stands for the hash of a file that is not there. */
inline constexpr char goneHash[] = "gone";

} // namespace tw::test
