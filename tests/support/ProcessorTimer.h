#pragma once

#include <QtCore/QtGlobal>

#include <ctime>

/// Measures the time of the processor that this process takes: other work on the machine does not
/// count, and neither does waiting.
class ProcessorTimer
{
public:
    /// Returns the milliseconds since this was made.
    qint64 elapsed() const { return nsecsElapsed() / 1'000'000; }
    qint64 nsecsElapsed() const { return now() - m_begin; }

private:
    static qint64 now()
    {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
    }

    qint64 m_begin = now();
};
