#pragma once

#include <ctime>

/// Returns the time that the process has had a processor, in nanoseconds. What else the machine
/// does meanwhile does not count.
inline double processorTime()
{
    std::timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}
