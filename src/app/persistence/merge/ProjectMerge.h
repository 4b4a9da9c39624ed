#pragma once

#include "app/persistence/codec/ProjectWriter.h"
#include "app/persistence/merge/FileMerge.h"
#include "core/foundation/Result.h"

#include <QHash>
#include <QStringList>

#include <vector>

namespace tw::app::persistence {

/** A project in its three versions: as last read or saved here, as it would be saved now, as it is on disk.
 */
struct ProjectVersions
{
    ProjectFileMap base;
    ProjectFileMap mine;
    ProjectFileMap theirs;
};

/** What is to become of a file that both sides changed over the same lines. */
enum class Resolution
{
    Open,
    Mine,
    Theirs,
    Paragraphs, ///< See FileMerge::byParagraphs.
};

/**
 * Compares a project's three versions file by file, keeps what the user decides about conflicts, and gives
 * the project that comes out. Values in memory alone; nothing is read or written. Any thread.
 */
class ProjectMerge
{
public:
    explicit ProjectMerge(ProjectVersions versions);

    /** The files that were changed outside, other than as here, sorted by path. */
    [[nodiscard]] const std::vector<FileMerge>& changes() const { return m_changes; }
    /** Those of them over which somebody has to choose. */
    [[nodiscard]] std::vector<const FileMerge*> conflicts() const;
    /** The files on disk that hold nothing readable, as a sync client leaves them half-way through. */
    [[nodiscard]] const QStringList& unreadable() const { return m_unreadable; }

    [[nodiscard]] const ProjectFileMap& mine() const { return m_versions.mine; }
    [[nodiscard]] const ProjectFileMap& theirs() const { return m_versions.theirs; }

    /** Decides about a conflict; `Paragraphs` only where that is possible. */
    void resolve(const QString& path, Resolution resolution);
    [[nodiscard]] Resolution resolutionOf(const QString& path) const { return m_resolutions.value(path); }
    [[nodiscard]] bool hasOpenConflicts() const;

    /**
     * All files of the merged project. Refused while conflicts are open, and when the files do not make a
     * project that can be opened; the message then names the file.
     */
    [[nodiscard]] core::Result<ProjectFileMap> applied() const;

private:
    void followNamesOnDisk();
    void compare(const QString& path);

    ProjectVersions m_versions;
    std::vector<FileMerge> m_changes;
    QStringList m_unreadable;
    QHash<QString, Resolution> m_resolutions;
};

} // namespace tw::app::persistence
