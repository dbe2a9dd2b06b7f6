// Ratios.h: a benchmark's figures as ratios to its peer's of the same run, which is what stays when the machine
// changes. Thread: main.
#pragma once

#include <string>

namespace Pelnar::Bench
{

/// States, at load time, that the benchmark \a subject takes at most \a limit times the processor time of the
/// benchmark \a peer; where the two time themselves (UseManualTime), that time. Both are named as the benchmark library
/// names them, arguments included ("Choose/1000"). The main function prints the ratio of the medians of interleaved
/// repetitions and answers with 1 when a limit is missed.
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
