#include "app/persistence/AutosaveController.h"

#include "app/workspace/Workspace.h"

#include <algorithm>
#include <cmath>

namespace tw::app::persistence {

namespace {

constexpr std::chrono::seconds firstInterval{30};

} // namespace

AutosaveController::AutosaveController(workspace::Workspace& workspace, QObject* parent)
    : QObject(parent)
    , m_workspace(workspace)
{
    m_timer.setInterval(firstInterval);
    connect(&m_timer, &QTimer::timeout, this, &AutosaveController::saveNow);
}

void AutosaveController::setInterval(std::chrono::milliseconds interval)
{
    // Setting the interval of a running timer begins a new period, which a mere look at the settings must
    // not.
    if (interval != m_timer.intervalAsDuration())
        m_timer.setInterval(interval);
}

void AutosaveController::start()
{
    if (!m_timer.isActive())
        m_timer.start();
}

void AutosaveController::stop()
{
    m_timer.stop();
}

void AutosaveController::saveNow()
{
    emit aboutToSave();
    if (!m_workspace.hasPath() || !m_workspace.isModified())
        return;
    if (const auto result = m_workspace.save(); !result)
        emit saveFailed(result.message());
    else
        emit saved();
}

std::chrono::seconds autosaveInterval(const QString& setting)
{
    bool isNumber = false;
    // As a floating-point number, so that one of any length is too long and not no number.
    const double seconds = setting.toDouble(&isNumber);
    if (!isNumber || std::isnan(seconds))
        return shortestAutosave;
    const auto within = [](std::chrono::seconds bound) { return static_cast<double>(bound.count()); };
    return std::chrono::seconds(
        static_cast<qint64>(std::clamp(seconds, within(shortestAutosave), within(longestAutosave))));
}

} // namespace tw::app::persistence
