#include "app/persistence/files/ParallelFor.h"

#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <atomic>

namespace tw::app::persistence {

namespace {

constexpr qsizetype mostThreads = 8;

} // namespace

void parallelFor(
    qsizetype count, qsizetype grain, const std::function<void(qsizetype begin, qsizetype end)>& work)
{
    std::atomic<qsizetype> next = 0;
    const auto takeParts = [&] {
        for (qsizetype begin = next.fetch_add(grain); begin < count; begin = next.fetch_add(grain))
            work(begin, std::min(begin + grain, count));
    };
    const qsizetype parts = (count + grain - 1) / grain;
    const qsizetype threads = std::min({mostThreads, qsizetype{QThread::idealThreadCount()}, parts});
    if (threads < 2) {
        takeParts();
        return;
    }
    QThreadPool helpers;
    helpers.setMaxThreadCount(static_cast<int>(threads - 1));
    for (qsizetype helper = 1; helper < threads; ++helper)
        helpers.start(takeParts);
    takeParts();
    helpers.waitForDone();
}

} // namespace tw::app::persistence
