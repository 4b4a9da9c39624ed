#pragma once

#include "app/workspace/Workspace.h"

#include <array>
#include <chrono>
#include <functional>
#include <optional>

namespace tw::mcp::server {

/**
 * Reads the open project anew when others changed it on disk, so that tools tell what the writer sees in the
 * program. Only while nothing is unsaved: then the changes stay, and saving is refused as in the program.
 * Steps that were undone and could not be saved count for nothing.
 *
 * Looking at every file takes a while, so that is done only when a folder shows that something was saved into
 * it, or once in a while; the dearer the look, the rarer. The glance at the folders is rationed in the same
 * way, so that calls that follow each other at once pay for few of them; it is never left out for longer than
 * a tenth of a second.
 */
class ProjectRefresher
{
public:
    using SteadyClock = std::function<std::chrono::nanoseconds()>;
    /** Told what happened, for the log; never what the project holds. */
    using Log = std::function<void(const QString& line)>;

    /** The workspace outlives it. */
    ProjectRefresher(app::workspace::Workspace& workspace, SteadyClock clock, Log log);

    /** To be called before the project is used. */
    void refresh();
    /**
     * To be called after a call that may have saved: what came to the folders meanwhile was its own. When a
     * save was refused because others changed the project, it is read anew as soon as nothing is unsaved, and
     * what comes back tells the model how to get there. Empty otherwise.
     */
    [[nodiscard]] QString settleChange();

private:
    /** Of the project's folders: they tell when entries last came or went, as they do with every save. */
    using FolderStamps = std::array<std::optional<app::persistence::FileStamp>, 3>;

    [[nodiscard]] FolderStamps folderStamps() const;
    [[nodiscard]] bool isChangedOnDisk();
    [[nodiscard]] bool hasOwnChanges() const;

    app::workspace::Workspace& m_workspace;
    SteadyClock m_clock;
    Log m_log;
    FolderStamps m_seen;
    /** A save was refused: the next look is not to be put off. */
    bool m_isLookDue = false;
    std::chrono::nanoseconds m_nextGlance = std::chrono::nanoseconds::min();
    std::chrono::nanoseconds m_nextLook;
};

} // namespace tw::mcp::server
