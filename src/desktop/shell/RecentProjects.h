#pragma once

#include <QStringList>

class QSettings;

namespace tw::desktop::shell {

/** The list of recently opened projects in the settings, newest first, each path once. */
class RecentProjects
{
public:
    explicit RecentProjects(QSettings& settings)
        : m_settings(settings)
    {}

    [[nodiscard]] QStringList paths() const;
    void add(const QString& path);
    void remove(const QString& path);

private:
    QSettings& m_settings;
};

} // namespace tw::desktop::shell
