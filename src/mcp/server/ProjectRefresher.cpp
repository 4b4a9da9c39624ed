#include "mcp/server/ProjectRefresher.h"

#include <algorithm>

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
    const auto start = m_clock();
    if (start < m_nextGlance)
        return false;
    const bool isBundleChanged = m_workspace.hasSingleFile() && m_workspace.isBundleChangedOnDisk();
    const FolderStamps stamps = folderStamps();
    const auto now = m_clock();
    m_nextGlance = now + std::min(longestGlancePause, (now - start) * restPerLook);
    if (isBundleChanged)
        return true;
    if (stamps == m_seen && now < m_nextLook)
        return false;
    const bool isChanged = !m_workspace.externalChanges().isEmpty();
    m_seen = stamps;
    m_nextLook = m_clock() + std::max(leastPause, (m_clock() - now) * restPerLook);
    return isChanged;
}

void ProjectRefresher::refresh()
{
    if (m_workspace.isModified() || !isChangedOnDisk())
        return;
    if (const auto reloaded = m_workspace.reload(); !reloaded) {
        m_log(u"The project changed on disk but could not be read again: %1"_s.arg(reloaded.message()));
        return;
    }
    m_log(u"The project changed on disk and was read again."_s);
    m_seen = folderStamps();
}

} // namespace tw::mcp::server
