#pragma once

#include <memory>

namespace tw::bench {

/**
 * Keeps this thread, and the processes that it starts meanwhile, on one processor as long as it lives. A line
 * that is read on another processor has to wake that one up first, which takes a virtual machine ten times as
 * long as handing the line over; and where a system puts a process changes with how busy it is. Only on
 * Linux; elsewhere it does nothing.
 */
class OneProcessor
{
public:
    OneProcessor();
    ~OneProcessor();
    OneProcessor(const OneProcessor&) = delete;
    OneProcessor& operator=(const OneProcessor&) = delete;

private:
    struct Former;

    std::unique_ptr<Former> m_former;
};

} // namespace tw::bench
