#include "bench/Ratios.h"

#include <benchmark/benchmark.h>
#include <glog/logging.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <utility>
#include <vector>

namespace Pelnar::Bench
{
namespace
{

struct Ratio
{
    std::string subject;
    std::string peer;
    double limit;
};

std::vector<Ratio>& Ratios()
{
    static std::vector<Ratio> ratios;
    return ratios;
}

struct Time
{
    std::string subject;
    double mostMilliseconds;
};

std::vector<Time>& Times()
{
    static std::vector<Time> times;
    return times;
}

/// Prints medians and spreads, and keeps the time of every repetition.
class TimeKeeper : public benchmark::ConsoleReporter
{
public:
    TimeKeeper() : ConsoleReporter(OO_None) {}

    void ReportRuns(std::vector<Run> const& runs) override
    {
        std::vector<Run> printed;
        for (Run const& run : runs)
        {
            if (run.error_occurred)
            {
                m_hasFailed = true;
                printed.push_back(run);
            }
            else if (run.run_type == Run::RT_Iteration)
            {
                // A benchmark that measures its own time waits for a disk or for other processes.
                bool const isTimedByItself = run.run_name.time_type == "manual_time";
                double const seconds = isTimedByItself ? run.real_accumulated_time : run.cpu_accumulated_time;
                m_nanoseconds[run.run_name.str()].push_back(1e9 * seconds / static_cast<double>(run.iterations));
            }
            else if (run.aggregate_name == "median" || run.aggregate_name == "cv")
            {
                printed.push_back(run);
            }
        }
        ConsoleReporter::ReportRuns(printed);
    }

    bool HasFailed() const { return m_hasFailed; }

    /// Negative if no benchmark with that name ran.
    double Median(std::string const& name) const
    {
        auto const found = m_nanoseconds.find(name);
        if (found == m_nanoseconds.end())
        {
            return -1;
        }
        std::vector<double> times = found->second;
        auto const middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
        std::nth_element(times.begin(), middle, times.end());
        return *middle;
    }

private:
    std::map<std::string, std::vector<double>> m_nanoseconds;
    bool m_hasFailed = false;
};

/// True if every ratio whose two benchmarks ran is within its limit.
bool PrintRatios(TimeKeeper const& times)
{
    bool isWithin = true;
    std::printf("\n%-34s %-34s %12s %12s %8s %8s\n", "subject", "peer", "median ns", "peer's ns", "ratio", "limit");
    for (Ratio const& ratio : Ratios())
    {
        double const subject = times.Median(ratio.subject);
        double const peer = times.Median(ratio.peer);
        if (subject < 0 || peer <= 0)
        {
            continue;
        }
        bool const isMissed = subject / peer > ratio.limit;
        isWithin = isWithin && !isMissed;
        std::printf("%-34s %-34s %12.1f %12.1f %8.3f %8.3f%s\n", ratio.subject.c_str(), ratio.peer.c_str(), subject,
                    peer, subject / peer, ratio.limit, isMissed ? "  MISSED" : "");
    }
    return isWithin;
}

/// The same for every time.
bool PrintTimes(TimeKeeper const& times)
{
    bool isWithin = true;
    for (Time const& time : Times())
    {
        double const milliseconds = times.Median(time.subject) / 1e6;
        if (milliseconds < 0)
        {
            continue;
        }
        bool const isMissed = milliseconds > time.mostMilliseconds;
        isWithin = isWithin && !isMissed;
        std::printf("%-69s %12.1f ms, limit %.0f ms%s\n", time.subject.c_str(), milliseconds, time.mostMilliseconds,
                    isMissed ? "  MISSED" : "");
    }
    return isWithin;
}

} // namespace

StatedRatio::StatedRatio(std::string subject, std::string peer, double limit)
{
    Ratios().push_back({std::move(subject), std::move(peer), limit});
}

StatedTime::StatedTime(std::string subject, double mostMilliseconds)
{
    Times().push_back({std::move(subject), mostMilliseconds});
}

} // namespace Pelnar::Bench

int main(int argc, char** argv)
{
    // The repetitions of subject and peer alternate, so that a slower minute of the machine affects both. Command-line
    // options come later and have priority.
    std::vector<std::string> arguments{argv[0], "--benchmark_enable_random_interleaving=true",
                                       "--benchmark_repetitions=15", "--benchmark_min_time=0.05"};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
    {
        pointers.push_back(argument.data());
    }
    int count = static_cast<int>(pointers.size());
    pointers.push_back(nullptr);

    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data()))
    {
        return 2;
    }
    Pelnar::Bench::TimeKeeper times;
    benchmark::RunSpecifiedBenchmarks(&times);
    bool const areRatiosWithin = Pelnar::Bench::PrintRatios(times);
    bool const areTimesWithin = Pelnar::Bench::PrintTimes(times);
    return areRatiosWithin && areTimesWithin && !times.HasFailed() ? 0 : 1;
}
