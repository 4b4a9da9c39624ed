#pragma once

#include "app/persistence/journal/CrashJournal.h"
#include "app/persistence/journal/JournalFile.h"

#include <QStringList>

#include <functional>
#include <vector>

namespace tw::app::persistence {

/** What brings the unsaved edits of a journal back into the project as it is now. */
struct JournalRestore
{
    /** The files that get another content; none removes one. */
    std::map<QString, FileVersion> files;
    /** Those of them that others changed meanwhile over the same lines: the journal's version stands. */
    QStringList overridden;

    [[nodiscard]] bool isEmpty() const { return files.empty(); }
};

/**
 * Compares a journal with the project's files: what is saved already drops out, what others changed since is
 * merged line by line where that leaves a file that can be read. `present` gives the content of a file now.
 */
[[nodiscard]] JournalRestore planRestore(
    const Journal& journal, const std::function<FileVersion(const QString& path)>& present);

/** The same for several journals, applied one after another. */
[[nodiscard]] JournalRestore planRestore(
    const std::vector<AbandonedJournal>& journals,
    const std::function<FileVersion(const QString& path)>& present);

} // namespace tw::app::persistence
