// IdleBench.cpp: the cost of the update checker in a Qt program before its first check, compared with the same program
// without it; and how long the first check, which loads the engine, blocks the event loop.

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace
{

constexpr int PAIRS = 21;
constexpr double MOST_LIBRARIES = 10;
constexpr double MOST_MILLISECONDS = 3;
constexpr double MOST_MEBIBYTES = 3;
constexpr double LONGEST_STALL_MILLISECONDS = 50;

/// The values that a host prints, in this order.
enum Figure
{
    LIBRARIES,
    LIBRARY_MEBIBYTES,
    PROCESSOR_MILLISECONDS,
    MEMORY_MEBIBYTES,
    STALL_MILLISECONDS,
    HAS_FOUND,
    FIGURES
};
using Figures = std::array<double, FIGURES>;

Figures Run(std::string const& program, std::string const& argument = {})
{
    Figures figures{};
    std::string const command = "QT_QPA_PLATFORM=offscreen exec '" + program + "' " + argument;
    if (FILE* const output = ::popen(command.c_str(), "r"))
    {
        for (double& figure : figures)
        {
            if (std::fscanf(output, "%lf", &figure) != 1)
            {
                break;
            }
        }
        ::pclose(output);
    }
    return figures;
}

double MedianOf(std::vector<Figures> const& runs, Figure figure)
{
    std::vector<double> values;
    for (Figures const& run : runs)
    {
        values.push_back(run[figure]);
    }
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The feed of the first check, in a temporary folder.
class Feed
{
public:
    Feed()
    {
        std::ofstream(Path()) << "<rss version=\"2.0\" xmlns:s=\"http://www.andymatuschak.org/xml-namespaces/sparkle\">"
                                 "<channel><item><title>5.10</title><enclosure url=\"a.zip\" s:version=\"5.10\" "
                                 "length=\"1000\"/></item></channel></rss>";
    }
    std::string Path() const { return m_folder.filePath(QStringLiteral("feed.xml")).toStdString(); }
    std::string Address() const { return "'file://" + Path() + "'"; }

private:
    QTemporaryDir m_folder;
};

/// Pairs of runs one after the other, so that both run under the same load of the machine.
void IdleHost(benchmark::State& state)
{
    std::vector<Figures> with;
    std::vector<Figures> without;
    for (auto _ : state)
    {
        for (int pair = 0; pair < PAIRS; ++pair)
        {
            with.push_back(Run(PELNAR_BENCH_IDLE_HOST));
            without.push_back(Run(PELNAR_BENCH_PLAIN_HOST));
        }
    }
    auto const more = [&](Figure figure) { return MedianOf(with, figure) - MedianOf(without, figure); };
    std::printf("%-34s %14s %14s %14s %10s\n", "an idle host", "with", "without", "more", "limit");
    auto const print = [&](char const* name, Figure figure, char const* limit)
    {
        std::printf("%-34s %14.1f %14.1f %14.1f %10s\n", name, MedianOf(with, figure), MedianOf(without, figure),
                    more(figure), limit);
    };
    print("shared libraries", LIBRARIES, "10");
    print("their size in MiB", LIBRARY_MEBIBYTES, "");
    print("processor time in ms", PROCESSOR_MILLISECONDS, "3");
    print("memory in MiB", MEMORY_MEBIBYTES, "3");
    std::fflush(stdout);
    if (MedianOf(with, LIBRARIES) < 1 || MedianOf(without, LIBRARIES) < 1)
    {
        state.SkipWithError("a host does not run");
    }
    else if (more(LIBRARIES) > MOST_LIBRARIES || more(PROCESSOR_MILLISECONDS) > MOST_MILLISECONDS ||
             more(MEMORY_MEBIBYTES) > MOST_MEBIBYTES)
    {
        state.SkipWithError("an idle host costs more than its limits");
    }
}
BENCHMARK(IdleHost)->Iterations(1)->Repetitions(1);

void FirstCheck(benchmark::State& state)
{
    Feed const feed;
    std::vector<Figures> runs;
    for (auto _ : state)
    {
        for (int run = 0; run < PAIRS; ++run)
        {
            runs.push_back(Run(PELNAR_BENCH_IDLE_HOST, feed.Address()));
        }
    }
    double longest = 0;
    bool haveFound = true;
    for (Figures const& run : runs)
    {
        longest = std::max(longest, run[STALL_MILLISECONDS]);
        haveFound = haveFound && run[HAS_FOUND] > 0;
    }
    std::printf("%-34s %14.1f, at most %.1f; limit %.0f\n", "longest event of the first check, ms",
                MedianOf(runs, STALL_MILLISECONDS), longest, LONGEST_STALL_MILLISECONDS);
    std::fflush(stdout);
    if (!haveFound)
    {
        state.SkipWithError("a first check does not find its update");
    }
    else if (longest > LONGEST_STALL_MILLISECONDS)
    {
        state.SkipWithError("the first check holds the event loop up for too long");
    }
}
BENCHMARK(FirstCheck)->Iterations(1)->Repetitions(1);

} // namespace
