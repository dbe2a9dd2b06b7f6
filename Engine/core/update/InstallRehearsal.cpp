#include "Engine/core/update/InstallRehearsal.h"

#include "Engine/core/faults/EngineError.h"
#include "Engine/core/helper/HelperReport.h"
#include "Engine/core/helper/UpdateJob.h"
#include "Engine/core/update/HelperLaunch_p.h"
#include "Engine/core/update/HelperProcess.h"
#include "Engine/core/update/PreparedUpdate.h"

#include <cerrno>
#include <chrono>
#include <string>

#include <poll.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds LONGEST_REHEARSAL{60};

/// The helper's output until it ended, or until its time-out.
std::string ReadReports(UniqueFd const& reports)
{
    std::string text;
    Clock::time_point const end = Clock::now() + LONGEST_REHEARSAL;
    while (text.size() < HELPER_PIPE_BYTES && Clock::now() < end)
    {
        pollfd waiting{reports.Get(), POLLIN, 0};
        auto const left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
        if (::poll(&waiting, 1, static_cast<int>(left.count()) + 1) < 0 && errno != EINTR)
        {
            break;
        }
        char buffer[HELPER_REPORT_MAX_BYTES];
        ssize_t const count = ::read(reports.Get(), buffer, sizeof buffer);
        if (count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR))
        {
            break;
        }
        text.append(buffer, count < 0 ? 0 : static_cast<std::size_t>(count));
    }
    return text;
}

Result<void> Judge(InstallTarget const& target, std::string const& reports)
{
    for (std::size_t begin = 0, end = 0; (end = reports.find('\n', begin)) != std::string::npos; begin = end + 1)
    {
        auto const report = DecodeHelperReport(std::string_view(reports).substr(begin, end - begin));
        if (report && std::holds_alternative<RehearsedReport>(*report))
        {
            return {};
        }
        if (auto const* const refused = report ? std::get_if<RefusedReport>(&*report) : nullptr)
        {
            return Failure(MakeTargetError(target, refused->fault, refused->errorNumber));
        }
    }
    return Failure(ErrorCause::HelperFailed);
}

} // namespace

Result<void> RehearseInstallation(InstallTarget const& target, SealedProgram& helper)
{
    try
    {
        auto const folder = PreparedUpdate::Begin(target);
        UniqueFd const host = OpenProcess();
        RehearseJob const job{target.name};
        LaunchedHelper const launched =
            LaunchHelper(helper, "rehearse", EncodeUpdateJob(job),
                         DescriptorMap(job, {folder->Descriptor(), target.parent.Get(), host.Get()}));
        std::string const reports = ReadReports(launched.reports);
        KillHelper(launched.process); // unless it has ended by itself
        // Its report says more than its status, which a host that reaps every child removes.
        static_cast<void>(Reap(launched.process));
        return Judge(target, reports);
    }
    catch (UpdateRefusal const& refusal)
    {
        return Failure(MakeTargetError(target, refusal.Fault(), refusal.ErrorNumber()));
    }
}

} // namespace Pelnar::Engine
