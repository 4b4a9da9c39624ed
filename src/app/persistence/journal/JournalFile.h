#pragma once

#include "core/foundation/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <map>
#include <optional>

namespace tw::app::persistence {

/** The content of a project file at some time; none when there was no such file. */
using FileVersion = std::optional<QByteArray>;

/** What a journal knows of one project file. */
struct JournaledFile
{
    FileVersion base;  ///< As last loaded or saved, before the edits.
    FileVersion bytes; ///< As the open project had it.

    bool operator==(const JournaledFile&) const = default;
};

/** All of a journal: which project, and the files that differ from what was last saved. */
struct Journal
{
    QString projectPath;                    ///< As opened: a folder or a single file.
    std::map<QString, JournaledFile> files; ///< By path from the project's root.
    qsizetype readableSize = 0;             ///< Bytes; what follows is the torn end of a crash.
};

/**
 * A journal file: a line that names the format, then records, each with its size and checksum in front, so
 * that a torn one ends the reading and spoils nothing before it. The first record names the project.
 */
[[nodiscard]] QByteArray journalHeader(const QString& projectPath);

/** One edit of a file. The base goes into the first record of a file alone; later ones leave it out. */
struct JournalRecord
{
    QString path;
    std::optional<FileVersion> base;
    FileVersion bytes;
};
[[nodiscard]] QByteArray encodeRecord(const JournalRecord& record);

/** Reads as far as the journal is whole. Fails when it is no journal, or one of a later program. */
[[nodiscard]] core::Result<Journal> parseJournal(QByteArrayView bytes);

} // namespace tw::app::persistence
