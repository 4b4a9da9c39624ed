#pragma once

#include "app/workspace/Workspace.h"
#include "desktop/shell/ProjectSession.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <chrono>

namespace tw::desktop::review {

/** What a look at the folder of the open project found. */
struct DiskFindings
{
    qsizetype files = 0; ///< Project files that others changed, added or removed.
    qsizetype media = 0; ///< The same for files under assets/.
};

/**
 * Looks quietly whether others changed the open project: after the folder stirred, and whenever somebody asks
 * with lookSoon(). The files are looked at on a thread of its own, at most once in `pause`, never while the
 * user types. A place that cannot be watched is only looked at when asked. The session must outlive it.
 */
class DiskWatch final : public QObject
{
    Q_OBJECT

public:
    explicit DiskWatch(
        shell::ProjectSession& session, QObject* parent,
        std::chrono::milliseconds pause = std::chrono::seconds(1));
    /** Waits for a look that is under way. */
    ~DiskWatch() override;

    void lookSoon();

signals:
    void looked(const tw::desktop::review::DiskFindings& findings);

private:
    struct Look;

    void follow(const QString& folder);
    void look();
    void finish(const Look& look);
    [[nodiscard]] qsizetype stillChanged(const Look& look) const;

    shell::ProjectSession& m_session;
    QFileSystemWatcher m_watcher;
    QTimer m_timer;
    bool m_isLooking = false;
    /** Last, so that its threads end before anything else goes. */
    QThreadPool m_pool;
};

} // namespace tw::desktop::review
