// IsolatedUserDefaults.h: gives this process its own user defaults, and a cache folder if the environment names none,
// so that tests and tools never change those of the person who runs them. Plain C++.
// Thread: main, before Foundation is first used and before other threads start. Ownership: a scope object. It removes
// the defaults at its end, so it must outlive the last use of Foundation.
#pragma once

#include <memory>

namespace Pelnar::Foundation
{

class IsolatedUserDefaults
{
public:
    /// Moves the process's user defaults to an empty place that nothing else uses. If this fails, it ends the process
    /// with a message.
    IsolatedUserDefaults();
    ~IsolatedUserDefaults();
    IsolatedUserDefaults(IsolatedUserDefaults const&) = delete;
    IsolatedUserDefaults& operator=(IsolatedUserDefaults const&) = delete;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Pelnar::Foundation
