#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

namespace tw::app::workspace {
class Workspace;
}

namespace tw::app::persistence {

/**
 * Saves the workspace time and again. Lives on the main thread; the workspace must outlive it. Whoever holds
 * typing back pushes it into the project when aboutToSave() is heard.
 */
class AutosaveController final : public QObject
{
    Q_OBJECT

public:
    explicit AutosaveController(workspace::Workspace& workspace, QObject* parent = nullptr);

    void setInterval(std::chrono::milliseconds interval);
    [[nodiscard]] std::chrono::milliseconds interval() const { return m_timer.intervalAsDuration(); }
    [[nodiscard]] bool isRunning() const { return m_timer.isActive(); }

signals:
    void aboutToSave();
    void saved();
    /** The changes are as unsaved as before. */
    void saveFailed(const QString& message);

public slots:
    void start();
    void stop();
    /** A project without a place on disk is left alone. */
    void saveNow();

private:
    workspace::Workspace& m_workspace;
    QTimer m_timer;
};

inline constexpr std::chrono::seconds shortestAutosave{15};
inline constexpr std::chrono::seconds longestAutosave{3600};

/** The period that a setting asks for: whole seconds, between 15 and 3600; what is no number counts as 15. */
[[nodiscard]] std::chrono::seconds autosaveInterval(const QString& setting);

} // namespace tw::app::persistence
