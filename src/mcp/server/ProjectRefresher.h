#pragma once

#include "app/workspace/Workspace.h"

#include <array>
#include <chrono>
#include <functional>

namespace tw::mcp::server {

/**
 * Reads the open project anew when others changed it on disk, so that tools tell what the writer sees in the
 * program. Only while nothing is unsaved: then the changes stay, and saving is refused as in the program.
 *
 * Looking at every file takes a while, so that is done only when a folder shows that something was saved into
 * it, or once in a while; the dearer the look, the rarer.
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

private:
    /** The times at which entries of the project's folders last came or went. */
    struct FolderTimes
    {
        std::array<qint64, 3> milliseconds{};

        friend bool operator==(const FolderTimes&, const FolderTimes&) = default;
    };

    [[nodiscard]] FolderTimes folderTimes() const;
    [[nodiscard]] bool isChangedOnDisk();

    app::workspace::Workspace& m_workspace;
    SteadyClock m_clock;
    Log m_log;
    FolderTimes m_seenTimes;
    std::chrono::nanoseconds m_nextLook;
};

} // namespace tw::mcp::server
