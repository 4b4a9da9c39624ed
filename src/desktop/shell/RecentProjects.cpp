#include "desktop/shell/RecentProjects.h"

#include <QSettings>

namespace tw::desktop::shell {

namespace {

constexpr const char* key = "recentProjects";
constexpr qsizetype longestList = 12;

} // namespace

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
