#pragma once

#include "core/foundation/Result.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tw::app::persistence {

/** The content of a file; none where the file is absent. */
using FileVersion = std::optional<QByteArray>;

/** One project file as it was last read or written here, as it would be written now, and as it is on disk. */
struct FileVersions
{
    FileVersion base;
    FileVersion mine;
    FileVersion theirs;
};

/** How a file stands between its three versions. */
enum class FileStanding
{
    Untouched,  ///< Nobody else changed it; mine holds, edited or not.
    TheirsOnly, ///< Changed, added or deleted outside alone.
    SameEdit,   ///< Both sides did the same.
    Merged,     ///< Both sides edited it, and the edits go together.
    Conflict,   ///< Somebody has to choose.
};

/** One file of a project and what a merge makes of it. */
struct FileMerge
{
    QString path; ///< From the project's root.
    FileVersions versions;
    FileStanding standing = FileStanding::Untouched;
    /** What the file becomes; of a conflict without meaning. */
    FileVersion result;
    /**
     * For a conflict in a document: both edits of the text brought together paragraph by paragraph, where
     * nothing else of the document is in conflict.
     */
    FileVersion byParagraphs;
    /** In `byParagraphs`, paragraphs that both sides changed stand in both versions between marks. */
    bool hasMarks = false;
};

/** Whether a project is made of this file: objects, categories, project.json, but nothing further down. */
[[nodiscard]] bool isLoadedFile(const QString& path);

/** The file as a save would write it; none when the bytes are no such file. */
[[nodiscard]] FileVersion canonicalForm(const QString& path, const QByteArray& bytes);

/**
 * Merges two edits of one project file by lines; the words that both sides logged for a day are added up.
 * Fails with the path when the edits overlap, or when what comes out is not exactly what a save writes:
 * broken JSON, a key that stands twice, another id. Base and theirs may be written in any form, mine is as a
 * save writes it.
 */
[[nodiscard]] core::Result<QByteArray> mergeProjectFile(
    const QString& path, const QByteArray& base, const QByteArray& mine, const QByteArray& theirs);

/** Finds out how a file stands, and merges it where both sides edited it. Any thread. */
[[nodiscard]] FileMerge mergeFile(const QString& path, FileVersions versions);

} // namespace tw::app::persistence
