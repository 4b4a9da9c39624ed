#include "bench/mcp-benchmark/OneProcessor.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX
#include <sched.h>
#endif

namespace tw::bench {

#ifdef Q_OS_LINUX

struct OneProcessor::Former
{
    cpu_set_t processors;
};

OneProcessor::OneProcessor()
    : m_former(std::make_unique<Former>())
{
    if (sched_getaffinity(0, sizeof m_former->processors, &m_former->processors) != 0)
        qFatal("The processors of this process cannot be told");
    cpu_set_t present;
    CPU_ZERO(&present);
    CPU_SET(static_cast<std::size_t>(sched_getcpu()), &present);
    if (sched_setaffinity(0, sizeof present, &present) != 0)
        qFatal("This process cannot be kept on one processor");
}

OneProcessor::~OneProcessor()
{
    if (sched_setaffinity(0, sizeof m_former->processors, &m_former->processors) != 0)
        qFatal("This process cannot be given its processors back");
}

#else

struct OneProcessor::Former
{};

OneProcessor::OneProcessor() = default;
OneProcessor::~OneProcessor() = default;

#endif

} // namespace tw::bench
