// ReportChannel.h: the helper's side of the report pipe.
// Thread: the helper's only one. Ownership: the descriptor is inherited and stays open to the end.
#pragma once

#include "Engine/core/helper/HelperReport.h"

namespace Pelnar::Installer
{

class ReportChannel
{
public:
    explicit ReportChannel(int descriptor) : m_descriptor(descriptor) {}

    /// Writes one whole line. A closed reader is not a failure: the signal SIGPIPE decides what happens.
    void Send(Engine::HelperReport const& report) const;
    /// Writes a progress line at the start, at the end and at most every 4 MiB in between.
    void SendProgress(Engine::HelperPhase phase, std::uint64_t doneBytes, std::uint64_t totalBytes);

private:
    int m_descriptor;
    std::uint64_t m_toldBytes = 0;
};

} // namespace Pelnar::Installer
