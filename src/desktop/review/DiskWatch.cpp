#include "desktop/review/DiskWatch.h"

#include "app/persistence/files/ProjectFiles.h"

#include <QFileInfo>

#include <algorithm>
#include <memory>

namespace tw::desktop::review {

namespace {

/** More than these are taken as found, without a second look at each of them. */
constexpr qsizetype looksTwice = 256;

} // namespace

/** One look: what is taken along to the other thread, and what comes back. */
struct DiskWatch::Look
{
    QString folder;
    app::persistence::DiskState state;
    app::persistence::AssetStamps assets;
    QStringList files;
    qsizetype media = 0;

    void run()
    {
        const app::persistence::DiskChanges changes = state.changesIn(folder);
        // A folder that cannot be read just now says nothing about what is in it.
        if (changes.unreadableFolders.isEmpty())
            files = changes.added + changes.changed + changes.removed;
        files.removeIf([](const QString& path) { return !app::persistence::isProjectFile(path); });
        media = assets.changesIn(folder);
    }
};

DiskWatch::DiskWatch(shell::ProjectSession& session, QObject* parent, std::chrono::milliseconds pause)
    : QObject(parent)
    , m_session(session)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(pause);
    m_pool.setMaxThreadCount(1);
    connect(&m_timer, &QTimer::timeout, this, &DiskWatch::look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &DiskWatch::lookSoon);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &DiskWatch::lookSoon);
    connect(
        &session, &shell::ProjectSession::changed, this,
        [this](const core::project::ProjectChanges& changes) {
            if (changes.isEverything)
                lookSoon();
        });
}

DiskWatch::~DiskWatch()
{
    m_pool.waitForDone();
}

void DiskWatch::lookSoon()
{
    if (!m_timer.isActive())
        m_timer.start();
}

void DiskWatch::follow(const QString& folder)
{
    // Files that were replaced are watched no longer, and another project may be open.
    if (const QStringList old = m_watcher.files() + m_watcher.directories(); !old.isEmpty())
        m_watcher.removePaths(old);
    QStringList places{folder};
    for (const QStringView name :
         {app::persistence::objectsFolder, app::persistence::taxonomyFolder, app::persistence::assetsFolder})
        places.append(folder + u'/' + name.toString());
    if (m_session.workspace().hasSingleFile())
        places.append(m_session.workspace().singleFilePath());
    places.removeIf([](const QString& path) { return !QFileInfo::exists(path); });
    if (!places.isEmpty())
        m_watcher.addPaths(places);
}

void DiskWatch::look()
{
    const app::workspace::Workspace& workspace = m_session.workspace();
    if (!workspace.hasPath())
        return;
    if (m_isLooking || m_session.isTypingPending() || workspace.history().isMacroOpen()) {
        lookSoon();
        return;
    }
    follow(workspace.folderPath());
    m_isLooking = true;
    auto look = std::make_shared<Look>(
        Look{workspace.folderPath(), workspace.diskState(), workspace.assetStamps(), {}, 0});
    m_pool.start([this, look] {
        look->run();
        QMetaObject::invokeMethod(
            this, [this, look] { finish(*look); }, Qt::QueuedConnection);
    });
}

void DiskWatch::finish(const Look& look)
{
    m_isLooking = false;
    if (m_session.workspace().folderPath() != look.folder)
        return;
    const qsizetype archives = m_session.isArchiveChangedOnDisk() ? 1 : 0;
    emit looked({stillChanged(look) + archives, look.media});
}

qsizetype DiskWatch::stillChanged(const Look& look) const
{
    if (look.files.isEmpty() || look.files.size() > looksTwice)
        return look.files.size();
    // What was saved or read anew meanwhile was found by mistake.
    app::persistence::DiskState known = m_session.workspace().diskState();
    return std::ranges::count_if(
        look.files, [&](const QString& path) { return !known.isUnchanged(look.folder, path); });
}

} // namespace tw::desktop::review
