// VersionsBench.cpp: parsing and comparing two versions of four components, compared with Qt's own version class.

#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "bench/Ratios.h"

#include <benchmark/benchmark.h>

#include <QString>
#include <QVersionNumber>

#include <functional>
#include <utility>
#include <vector>

namespace
{

using Pelnar::Core::Version;
using Pelnar::Core::Util::ShrinkVersion;

/// As in feeds: neighbours that differ in one of the later components.
std::vector<std::pair<QString, QString>> const& Pairs()
{
    static std::vector<std::pair<QString, QString>> const pairs = []
    {
        std::vector<std::pair<QString, QString>> made;
        for (int i = 0; i < 64; ++i)
        {
            made.emplace_back(QStringLiteral("5.%1.%2.%3").arg(i % 12).arg(i % 7).arg(1000 + i),
                              QStringLiteral("5.%1.%2.%3").arg(i % 12).arg(i % 5).arg(1001 + i));
        }
        return made;
    }();
    return pairs;
}

void Versions(benchmark::State& state)
{
    // The order that the updater gives to the session.
    std::function<bool(Version const&, Version const&)> const less = [](Version const& a, Version const& b)
    { return ShrinkVersion(a, 4) < ShrinkVersion(b, 4); };
    std::size_t i = 0;
    for (auto _ : state)
    {
        auto const& [a, b] = Pairs()[i++ % 64];
        benchmark::DoNotOptimize(less(Pelnar::App::Session::VersionFromStringNoexcept(a),
                                      Pelnar::App::Session::VersionFromStringNoexcept(b)));
    }
}
BENCHMARK(Versions);

void VersionsByQt(benchmark::State& state)
{
    std::size_t i = 0;
    for (auto _ : state)
    {
        auto const& [a, b] = Pairs()[i++ % 64];
        benchmark::DoNotOptimize(QVersionNumber::fromString(a) < QVersionNumber::fromString(b));
    }
}
BENCHMARK(VersionsByQt);

Pelnar::Bench::StatedRatio const VERSIONS_RATIO("Versions", "VersionsByQt", 0.15);

} // namespace
