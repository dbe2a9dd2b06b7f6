// SessionSignals.h: the signals by which a desktop session ends its programs. From the construction on they no longer
// end this process, which instead asks for them. Ownership: its own descriptor. The signals stay blocked for the rest
// of the process.
#pragma once

#include "Engine/core/base/Descriptor.h"

namespace Pelnar::Installer
{

class SessionSignals
{
public:
    /// On a system that cannot deliver signals through a descriptor, they end this process until Block() is called.
    SessionSignals();

    /// Can be read once a signal has arrived; -1 on such a system.
    int Descriptor() const { return m_arrived.Get(); }
    [[nodiscard]] bool HasArrived() const;
    /// Ends this process by the signal that has arrived.
    void End() const;
    /// From now on no signal ends this process.
    void Block() const;

private:
    Engine::UniqueFd m_arrived;
};

} // namespace Pelnar::Installer
