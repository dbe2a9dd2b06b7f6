// ChoosingBench.cpp: the choice among a feed's items, compared with the plain rules, which read both items through
// UTF-8, QUrl and QDate at every step.

#include "HostFramework/Reference/ReferenceOSVersion.h"
#include "bench/ChoosingFixture.h"
#include "bench/Ratios.h"

#include <benchmark/benchmark.h>

namespace
{

using namespace Pelnar::Bench;

void RunChoice(benchmark::State& state, int (ChoosingFixture::*choose)())
{
    Pelnar::Util::SetOSVersion(QStringLiteral("12.3"));
    ChoosingFixture fixture(static_cast<int>(state.range(0)));
    int const winner = fixture.Choose();
    if (winner != state.range(0) - 1 || winner != fixture.ChoosePlainly())
    {
        state.SkipWithError("the winners differ");
        return;
    }
    for (auto _ : state)
    {
        benchmark::DoNotOptimize((fixture.*choose)());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void Choose(benchmark::State& state)
{
    RunChoice(state, &ChoosingFixture::Choose);
}
BENCHMARK(Choose)->Arg(10)->Arg(1000)->Arg(20000);

void ChoosePlainly(benchmark::State& state)
{
    RunChoice(state, &ChoosingFixture::ChoosePlainly);
}
BENCHMARK(ChoosePlainly)->Arg(10)->Arg(1000)->Arg(20000);

StatedRatio const FEW_ITEMS_RATIO("Choose/10", "ChoosePlainly/10", 0.30);
StatedRatio const MANY_ITEMS_RATIO("Choose/1000", "ChoosePlainly/1000", 0.30);
StatedRatio const VERY_MANY_ITEMS_RATIO("Choose/20000", "ChoosePlainly/20000", 0.30);

} // namespace
