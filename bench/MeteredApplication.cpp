#include "bench/MeteredApplication.h"

#include <cstdio>
#include <ctime>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace Pelnar::Bench
{
namespace
{

double NanosecondsOf(clockid_t clock)
{
    timespec now{};
    ::clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

/// How long this thread was ready but had no processor; 0 if the kernel does not count it.
double NanosecondsWithoutProcessor()
{
    static int const file = ::open("/proc/thread-self/schedstat", O_RDONLY | O_CLOEXEC);
    char text[96] = {};
    double waited = 0;
    bool const isRead = ::pread(file, text, sizeof text - 1, 0) > 0;
    return isRead && std::sscanf(text, "%*s %lf", &waited) == 1 ? waited : 0;
}

} // namespace

Moment::Moment()
    : wall(NanosecondsOf(CLOCK_MONOTONIC))
    , computing(NanosecondsOf(CLOCK_THREAD_CPUTIME_ID))
    , withoutProcessor(NanosecondsWithoutProcessor())
{
    rusage usage{};
    ::getrusage(RUSAGE_THREAD, &usage);
    waits = usage.ru_nvcsw;
}

double StallBetween(Moment const& begin, Moment const& end)
{
    // If the thread did not wait, other guests of the machine took the rest of the time.
    return end.waits == begin.waits ? end.computing - begin.computing
                                    : end.wall - begin.wall - (end.withoutProcessor - begin.withoutProcessor);
}

} // namespace Pelnar::Bench
