#include "mcp/server/ProjectRefresher.h"

#include <algorithm>
#include <utility>

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::nanoseconds leastPause = 2s;
constexpr std::chrono::nanoseconds longestGlancePause = 100ms;
/** Looking takes at most this part of the time, and so does glancing at the folders: one in so many. */
constexpr int restPerLook = 50;

} // namespace

ProjectRefresher::ProjectRefresher(app::workspace::Workspace& workspace, SteadyClock clock, Log log)
    : m_workspace(workspace)
    , m_clock(std::move(clock))
    , m_log(std::move(log))
    , m_seen(folderStamps())
    , m_nextLook(m_clock() + leastPause)
{}

ProjectRefresher::FolderStamps ProjectRefresher::folderStamps() const
{
    app::persistence::FileSystem& fileSystem = m_workspace.environment().fileSystem;
    const QString& folder = m_workspace.folderPath();
    return {
        fileSystem.stamp(folder), fileSystem.stamp(folder + u"/objects"_s),
        fileSystem.stamp(folder + u"/taxonomy"_s)};
}

bool ProjectRefresher::isChangedOnDisk()
{
    const bool isLookDue = std::exchange(m_isLookDue, false);
    const auto start = m_clock();
    if (!isLookDue && start < m_nextGlance)
        return false;
    const bool isBundleChanged = m_workspace.hasSingleFile() && m_workspace.isBundleChangedOnDisk();
    const FolderStamps stamps = folderStamps();
    const auto now = m_clock();
    m_nextGlance = now + std::min(longestGlancePause, (now - start) * restPerLook);
    if (isBundleChanged)
        return true;
    if (!isLookDue && stamps == m_seen && now < m_nextLook)
        return false;
    const bool isChanged = !m_workspace.externalChanges().isEmpty();
    m_seen = stamps;
    m_nextLook = m_clock() + std::max(leastPause, (m_clock() - now) * restPerLook);
    return isChanged;
}

bool ProjectRefresher::hasOwnChanges() const
{
    return m_workspace.isModified() && !m_workspace.history().isSavedStateAhead();
}

QString ProjectRefresher::settleChange()
{
    if (!m_workspace.isModified()) {
        if (m_isLookDue) {
            return u"Nothing of this session is unsaved any more: the project is read again before the next "
                   u"call, "
                   "so repeat the change."_s;
        }
        m_seen = folderStamps();
        return {};
    }
    m_isLookDue = m_workspace.isBundleChangedOnDisk() || !m_workspace.externalChanges().isEmpty();
    if (!m_isLookDue)
        return {};
    return hasOwnChanges()
               ? u"Call undo_last until nothing of this session is unsaved; the project is then read "
                 "again; repeat the change."_s
               : u"The project is read again before the next call, with what was undone in it; look at "
                 "it and change it anew."_s;
}

void ProjectRefresher::refresh()
{
    if (hasOwnChanges() || !isChangedOnDisk())
        return;
    // Others went on from the saved state, and a project that cannot be read leaves it as the present one.
    while (m_workspace.history().isSavedStateAhead())
        m_workspace.undoStack().redo();
    if (const auto reloaded = m_workspace.reload(); !reloaded) {
        m_log(u"The project changed on disk but could not be read again: %1"_s.arg(reloaded.message()));
        return;
    }
    m_log(u"The project changed on disk and was read again."_s);
    m_seen = folderStamps();
}

} // namespace tw::mcp::server
