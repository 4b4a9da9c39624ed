#include "app/persistence/AutosaveController.h"

#include "app/workspace/Workspace.h"

#include <algorithm>

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
    const qint64 seconds = setting.toLongLong(&isNumber);
    if (isNumber)
        return std::clamp(std::chrono::seconds(seconds), shortestAutosave, longestAutosave);
    // A number without end is too long, and not no number.
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    const bool isOverlong = !setting.isEmpty() && std::ranges::all_of(setting, isDigit);
    return isOverlong ? longestAutosave : shortestAutosave;
}

} // namespace tw::app::persistence
