#pragma once

#include <QString>
#include <QStringList>

class QSettings;

namespace tw::desktop::shell {

/** A project that was open before, as it stands on disk now. */
struct RecentProject
{
    enum class State
    {
        SingleFile,
        Folder,
        /** Nothing lies at the path at the moment; a medium may be away. */
        Missing,
    };

    QString path;
    QString name;
    State state = State::Missing;
};

[[nodiscard]] RecentProject describeRecent(const QString& path);

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
