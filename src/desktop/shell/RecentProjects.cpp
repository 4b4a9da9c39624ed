#include "desktop/shell/RecentProjects.h"

#include "app/persistence/bundle/ProjectBundle.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace tw::desktop::shell {

namespace {

constexpr const char* key = "recentProjects";
constexpr qsizetype longestList = 12;

} // namespace

RecentProject describeRecent(const QString& path)
{
    const QFileInfo info(path);
    // A missing one is named as it would be if it were there.
    const bool isFile = app::persistence::isBundlePath(path) && !info.isDir();
    RecentProject recent{path, isFile ? info.completeBaseName() : QDir(path).dirName()};
    if (info.isDir())
        recent.state = RecentProject::State::Folder;
    else if (info.isFile())
        recent.state = RecentProject::State::SingleFile;
    return recent;
}

QStringList RecentProjects::paths() const
{
    return m_settings.value(key).toStringList();
}

void RecentProjects::add(const QString& path)
{
    QStringList list = paths();
    list.removeAll(path);
    list.prepend(path);
    m_settings.setValue(key, list.first(std::min(list.size(), longestList)));
}

void RecentProjects::remove(const QString& path)
{
    QStringList list = paths();
    list.removeAll(path);
    m_settings.setValue(key, list);
}

} // namespace tw::desktop::shell
