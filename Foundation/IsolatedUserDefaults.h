// IsolatedUserDefaults.h: gives this process user defaults of its own, and a cache folder where the environment names
// none, so that tests and tools never touch those of the person who runs them. Plain C++.
// Thread: main, before Foundation is first used and before other threads start. Ownership: a scope object; the defaults
// are removed with it, so it must outlive the last use of Foundation.
#pragma once

#include <memory>

namespace Pelnar::Foundation
{

class IsolatedUserDefaults
{
public:
    /// Sends the process's user defaults to a place that nobody else uses and that is empty. Ends the process with a
    /// sentence when that cannot be done.
    IsolatedUserDefaults();
    ~IsolatedUserDefaults();
    IsolatedUserDefaults(IsolatedUserDefaults const&) = delete;
    IsolatedUserDefaults& operator=(IsolatedUserDefaults const&) = delete;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Pelnar::Foundation
