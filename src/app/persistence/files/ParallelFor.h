#pragma once

#include <QtGlobal>

#include <functional>

namespace tw::app::persistence {

/**
 * Runs the work on every part of 0..count, in parts of up to `grain`, on the calling thread and as many
 * others as the computer has use for; returns when all of it is done. Parts begin in ascending order. The
 * work may be called from several threads at once and must not throw.
 */
void parallelFor(
    qsizetype count, qsizetype grain, const std::function<void(qsizetype begin, qsizetype end)>& work);

} // namespace tw::app::persistence
