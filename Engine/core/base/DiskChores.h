// DiskChores.h: runs slow work, mostly of the disk, in threads, so that it does not block an event loop.
// Thread: its maker's. Ownership: its destructor waits for every chore.
#pragma once

#include <functional>
#include <future>
#include <vector>

namespace Pelnar::Engine
{

class DiskChores
{
public:
    /// Runs \a chore in its own thread, or here if no thread can be created. An exception ends the chore, and is
    /// logged. Its captured objects are destroyed in the same thread.
    void Run(std::function<void()> chore);

private:
    std::vector<std::future<void>> m_running; // destroying one waits for its end
};

} // namespace Pelnar::Engine
