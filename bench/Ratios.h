// Ratios.h: compares a benchmark with its peer in the same run. The ratio stays the same when the machine changes.
// Thread: main.
#pragma once

#include <string>

namespace Pelnar::Bench
{

/// Declares, at load time, that the benchmark \a subject takes at most \a limit times the processor time of the
/// benchmark \a peer; if both measure their own time (UseManualTime), that time. The names are those of the benchmark
/// library, including arguments ("Choose/1000"). The main function prints the ratio of the medians of interleaved
/// repetitions, and returns 1 if a limit is exceeded.
class StatedRatio
{
public:
    StatedRatio(std::string subject, std::string peer, double limit);
};

/// The same for a benchmark without a peer: the median of its times is at most \a mostMilliseconds.
class StatedTime
{
public:
    StatedTime(std::string subject, double mostMilliseconds);
};

} // namespace Pelnar::Bench
