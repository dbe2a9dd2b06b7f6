// DiskChores.h: work on the disk that would hold an event loop up, done beside it.
// Thread: the one that made it. Ownership: its end waits for every chore.
#pragma once

#include <functional>
#include <future>
#include <vector>

namespace Pelnar::Engine
{

class DiskChores
{
public:
    /// Has \a chore run in a thread of its own, or here when there is no thread to be had. \a chore does not throw,
    /// and what it holds is let go there too.
    void Run(std::function<void()> chore);

private:
    std::vector<std::future<void>> m_running; // each waits for its end
};

} // namespace Pelnar::Engine
