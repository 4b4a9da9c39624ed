#pragma once

#include "core/foundation/Result.h"

#include <chrono>
#include <functional>

namespace tw::app::persistence {

/** How often a write is tried again, to outlast the brief locks of virus scanners and sync clients. */
struct RetryPolicy
{
    int attempts = 5;                         ///< In total; below 1 counts as 1.
    std::chrono::milliseconds firstDelay{40}; ///< Doubles after every failed attempt.
    std::chrono::milliseconds longestDelay{500};
};

/** Lets the calling thread wait; tests pass one that only notes the time. May be called from several threads.
 */
using Sleeper = std::function<void(std::chrono::milliseconds)>;

/** The sleeper of the program itself. */
void sleepThread(std::chrono::milliseconds duration);

/** Runs the attempt until it succeeds or the policy is exhausted; the result is that of the last attempt. */
[[nodiscard]] core::Result<void> retryFileWrite(
    const std::function<core::Result<void>()>& attempt, const RetryPolicy& policy = {},
    const Sleeper& sleeper = sleepThread);

} // namespace tw::app::persistence
