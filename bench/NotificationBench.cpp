// NotificationBench.cpp: one pass over the observers of the list, compared with one emission of a Qt signal to the same
// number of slots.

#include "bench/NotificationBench.h"
#include "bench/Ratios.h"
#include "common/EventHandlerList.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace
{

using namespace Pelnar::Bench;

std::vector<std::unique_ptr<Listener>> MakeListeners(benchmark::State const& state)
{
    std::vector<std::unique_ptr<Listener>> listeners;
    for (std::int64_t i = 0; i < state.range(0); ++i)
    {
        listeners.push_back(std::make_unique<Listener>());
    }
    return listeners;
}

/// Fails the benchmark if a listener missed an event.
void RequireAllHeard(benchmark::State& state, std::vector<std::unique_ptr<Listener>> const& listeners)
{
    for (auto const& listener : listeners)
    {
        if (listener->sum != 3 * static_cast<long>(state.iterations()))
        {
            state.SkipWithError("an event was missed");
        }
    }
}

void Notify(benchmark::State& state)
{
    auto const listeners = MakeListeners(state);
    Pelnar::Core::EventHandlerList<IObserver, Pelnar::Core::SyncExecutePolicy> list;
    for (auto const& listener : listeners)
    {
        list.RegisterEventHandler(listener.get());
    }
    int a = 1;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(a);
        list.PerformForEachEventHandler([a](IObserver* observer) { observer->OnEvent(a, 2); });
    }
    RequireAllHeard(state, listeners);
}
BENCHMARK(Notify)->Arg(1)->Arg(4)->Arg(64);

void NotifyByQtSignal(benchmark::State& state)
{
    auto const listeners = MakeListeners(state);
    Sender sender;
    for (auto const& listener : listeners)
    {
        QObject::connect(&sender, &Sender::Event, listener.get(), &Listener::OnEvent);
    }
    int a = 1;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(a);
        sender.Emit(a, 2);
    }
    RequireAllHeard(state, listeners);
}
BENCHMARK(NotifyByQtSignal)->Arg(1)->Arg(4)->Arg(64);

// No limit for a single observer: nobody would notice the difference.
StatedRatio const ONE_OBSERVER_RATIO("Notify/1", "NotifyByQtSignal/1", 2.5);
StatedRatio const FOUR_OBSERVERS_RATIO("Notify/4", "NotifyByQtSignal/4", 1.3);
StatedRatio const MANY_OBSERVERS_RATIO("Notify/64", "NotifyByQtSignal/64", 0.5);

} // namespace
