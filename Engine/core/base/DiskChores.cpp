#include "Engine/core/base/DiskChores.h"

#include "Engine/core/base/SignalBlock.h"

#include <glog/logging.h>

#include <algorithm>
#include <chrono>
#include <exception>
#include <memory>
#include <system_error>
#include <utility>

namespace Pelnar::Engine
{

namespace
{

void LogEnd(std::exception const& exception)
{
    try
    {
        LOG(WARNING) << "A task of the update engine ended early: " << exception.what();
    }
    catch (std::exception const&) // no memory for that either
    {
    }
}

/// A thread without a place for its exception would end the host.
void RunOnce(std::function<void()> const& chore)
{
    try
    {
        chore();
    }
    catch (std::exception const& exception)
    {
        LogEnd(exception);
    }
}

} // namespace

void DiskChores::Run(std::function<void()> chore)
{
    auto const isDone = [](std::future<void> const& running)
    { return running.wait_for(std::chrono::seconds(0)) == std::future_status::ready; };
    m_running.erase(std::remove_if(m_running.begin(), m_running.end(), isDone), m_running.end());
    auto const shared = std::make_shared<std::function<void()>>(std::move(chore));
    auto const run = [shared]() noexcept { RunOnce(std::exchange(*shared, nullptr)); };
    try
    {
        SignalBlock const block;
        m_running.push_back(std::async(std::launch::async, run));
    }
    catch (std::system_error const&)
    {
        run();
    }
}

} // namespace Pelnar::Engine
