// CallLater.h: hands the result of a thread to another one, even if memory is short for a moment: the other one waits
// for it. Thread: any.
#pragma once

#include <QMetaObject>
#include <QObject>

#include <chrono>
#include <exception>
#include <thread>

namespace Pelnar::Engine
{

constexpr int MOST_TRIES = 50;
constexpr std::chrono::milliseconds BETWEEN_TRIES{100};

/// Makes \a attempt until it throws nothing, for seconds at most.
template <typename Attempt>
void TryForAWhile(Attempt const& attempt) noexcept
{
    for (int triesLeft = MOST_TRIES; triesLeft > 0; --triesLeft)
    {
        try
        {
            attempt();
            return;
        }
        catch (std::exception const&) // out of memory
        {
            std::this_thread::sleep_for(BETWEEN_TRIES);
        }
    }
}

/// Calls a copy of \a call from the event loop of \a context. REQUIRES: \a context exists until this returns.
template <typename Call>
void CallLater(QObject& context, Call const& call) noexcept
{
    TryForAWhile([&] { QMetaObject::invokeMethod(&context, call, Qt::QueuedConnection); });
}

} // namespace Pelnar::Engine
