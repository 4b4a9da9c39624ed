#pragma once

#include "app/persistence/merge/ProjectMerge.h"
#include "app/workspace/TheirVersion.h"
#include "core/foundation/Result.h"

#include <QString>

namespace tw::app::workspace {

class Workspace;

/** What stands between the open project and its folder. */
enum class ReviewVerdict
{
    Unchanged,     ///< Nothing on disk differs from what is open, edits of our own apart.
    OnlyTheirs,    ///< Others changed files, and nothing is unsaved here.
    Mergeable,     ///< Both changed something, and all of it goes together.
    Conflicts,     ///< Somebody has to choose, file by file.
    NoWayTogether, ///< Each change is fine by itself, but together they make no project: pick a side.
};

/**
 * One look at what others changed in the folder of an open project, or in its archive if it is a single
 * file, and the ways to deal with it. What is decided holds for the files as they were read: one that changes
 * again afterwards is never overwritten.
 *
 * The workspace must outlive the review, and must not change while it is open. Main thread. A failure leaves
 * the workspace with all its unsaved edits, unless it says that the project was reloaded.
 */
class ExternalReview
{
public:
    /**
     * Reads what changed. Fails when the project was never saved, and when the files on disk cannot be read
     * as a project right now; the message names them. With nothing changed, the folder as it is counts as
     * known from here on.
     */
    [[nodiscard]] static core::Result<ExternalReview> begin(Workspace& workspace);

    [[nodiscard]] ReviewVerdict verdict() const { return m_verdict; }
    /** Project files that others changed. */
    [[nodiscard]] qsizetype changedFileCount() const;
    /** Files under assets/ that were added, replaced or removed. */
    [[nodiscard]] qsizetype changedMediaCount() const { return m_theirs.changedMedia; }
    /** For `NoWayTogether`: the files that both sides changed. */
    [[nodiscard]] qsizetype contestedFileCount() const;
    [[nodiscard]] const persistence::ProjectMerge& merge() const { return m_merge; }
    /** Decides about a conflict. */
    void resolve(const QString& path, persistence::Resolution resolution)
    {
        m_merge.resolve(path, resolution);
    }

    /** Opens the version on disk; what is unsaved here goes into a backup first. */
    [[nodiscard]] core::Result<void> takeTheirs();
    /** Leaves the disk alone after a backup, and has the next save write the open project over it. */
    [[nodiscard]] core::Result<void> keepMine();
    /** Backs up, writes the merged project to the folder and opens it. Refused while conflicts are open. */
    [[nodiscard]] core::Result<void> applyMerge();

private:
    /** How far the merged project got. */
    enum class Written
    {
        Completely,
        Partly,
        NotIntoArchive,
    };

    ExternalReview(Workspace& workspace, TheirVersion theirs, persistence::ProjectVersions versions);

    [[nodiscard]] ReviewVerdict findVerdict() const;
    void acceptDisk();
    [[nodiscard]] core::Result<void> backUp() const;
    /** Under the project's lock, which reading it anew may take again. A failure has changed nothing. */
    [[nodiscard]] core::Result<Written> write(const persistence::ProjectFileMap& merged);

    Workspace* m_workspace;
    TheirVersion m_theirs;
    persistence::ProjectMerge m_merge;
    ReviewVerdict m_verdict = ReviewVerdict::Unchanged;
};

} // namespace tw::app::workspace
