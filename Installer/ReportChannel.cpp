#include "Installer/ReportChannel.h"

#include "Engine/core/base/Descriptor.h"

namespace Pelnar::Installer
{
namespace
{

constexpr std::uint64_t PROGRESS_STEP_BYTES = std::uint64_t{4} << 20;

} // namespace

void ReportChannel::Send(Engine::HelperReport const& report) const
{
    static_cast<void>(Engine::WriteAll(m_descriptor, Engine::View(Engine::EncodeHelperReport(report))));
}

void ReportChannel::SendProgress(Engine::HelperPhase phase, std::uint64_t doneBytes, std::uint64_t totalBytes)
{
    bool const isEnd = doneBytes == 0 || doneBytes == totalBytes;
    if (isEnd || doneBytes - m_toldBytes >= PROGRESS_STEP_BYTES)
    {
        m_toldBytes = doneBytes;
        Send(Engine::ProgressReport{phase, doneBytes, totalBytes});
    }
}

} // namespace Pelnar::Installer
