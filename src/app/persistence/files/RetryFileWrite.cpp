#include "app/persistence/files/RetryFileWrite.h"

#include <QThread>

#include <algorithm>

namespace tw::app::persistence {

void sleepThread(std::chrono::milliseconds duration)
{
    QThread::msleep(static_cast<unsigned long>(duration.count()));
}

core::Result<void> retryFileWrite(
    const std::function<core::Result<void>()>& attempt, const RetryPolicy& policy, const Sleeper& sleeper)
{
    std::chrono::milliseconds delay = std::min(policy.firstDelay, policy.longestDelay);
    for (int remaining = std::max(policy.attempts, 1) - 1;; --remaining) {
        core::Result<void> result = attempt();
        if (result || remaining == 0)
            return result;
        sleeper(delay);
        delay = std::min(delay * 2, policy.longestDelay);
    }
}

} // namespace tw::app::persistence
