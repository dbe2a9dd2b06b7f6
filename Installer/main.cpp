// The installer's helper. It takes one word, "prepare", "install", "recover" or "rehearse"; everything else comes from
// inherited descriptors: see docs/formats/update-job.md. It reads no environment, no configuration and no other
// argument.

#include "Engine/core/base/CloseDescriptors.h"
#include "Engine/core/helper/StagingFolder.h"
#include "Engine/core/helper/UpdateJob.h"
#include "Installer/InstallUpdate.h"
#include "Installer/PrepareUpdate.h"
#include "Installer/RecoverSwap.h"
#include "Installer/Rehearse.h"
#include "Installer/ReportChannel.h"
#include "Installer/SwapLock.h"

#include <cerrno>
#include <exception>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#if __has_feature(address_sanitizer)
/// The leak checker cannot examine a confined or traced process at its end; all other checks stay on.
extern "C" int __lsan_is_turned_off()
{
    return 1;
}
#endif

namespace
{

using namespace Pelnar;
using Engine::HelperDescriptors;
using Engine::UpdateFault;
using Engine::UpdateRefusal;

constexpr int EXIT_REFUSED = 1;
constexpr int EXIT_USAGE = 2;
constexpr mode_t CREATION_MASK = 022;

/// Starts this program again without an environment, so that no variable of the host affects it, especially none of the
/// dynamic loader.
void DropEnvironment(char** arguments)
{
    if (*environ)
    {
        char* const none[] = {nullptr};
        ::execve("/proc/self/exe", arguments, none);
        ::_exit(EXIT_USAGE);
    }
}

/// Ensures that the standard streams exist, keeps inherited descriptors from programs started here, and closes
/// descriptors that were not announced.
void SettleDescriptors()
{
    for (int descriptor = 0; descriptor < HelperDescriptors::JOB; ++descriptor)
    {
        if (::fcntl(descriptor, F_GETFD) < 0 && ::open("/dev/null", O_RDWR) != descriptor)
        {
            ::_exit(EXIT_USAGE);
        }
    }
    for (int descriptor = HelperDescriptors::JOB; descriptor < HelperDescriptors::COUNT; ++descriptor)
    {
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    }
    Engine::CloseFrom(HelperDescriptors::COUNT);
}

void RequireFolder(int descriptor)
{
    struct stat status;
    if (::fstat(descriptor, &status) != 0 || !S_ISDIR(status.st_mode))
    {
        throw UpdateRefusal(UpdateFault::DescriptorUnusable, errno);
    }
}

void RequireStaging()
{
    RequireFolder(HelperDescriptors::STAGING);
    if (!Engine::IsPrivateFolder(HelperDescriptors::STAGING))
    {
        throw UpdateRefusal(UpdateFault::DescriptorUnusable);
    }
}

Engine::UpdateJob ReadJob()
{
    std::string bytes(Engine::UPDATE_JOB_MAX_BYTES + 1, '\0');
    std::size_t size = 0;
    while (size < bytes.size())
    {
        ssize_t const count = ::read(HelperDescriptors::JOB, bytes.data() + size, bytes.size() - size);
        if (count < 0 && errno != EINTR)
        {
            throw UpdateRefusal(UpdateFault::DescriptorUnusable, errno);
        }
        if (count == 0)
        {
            break;
        }
        size += count < 0 ? 0 : static_cast<std::size_t>(count);
    }
    auto job = Engine::DecodeUpdateJob(std::string_view(bytes).substr(0, size));
    if (!job)
    {
        throw UpdateRefusal(UpdateFault::JobMalformed);
    }
    return *std::move(job);
}

template <typename Job>
Job ReadJobOfKind()
{
    Engine::UpdateJob const job = ReadJob();
    if (!std::holds_alternative<Job>(job))
    {
        throw UpdateRefusal(UpdateFault::JobMalformed);
    }
    return std::get<Job>(job);
}

bool Prepare(Installer::ReportChannel& report)
{
    // After the host's end no process reads the report: SIGPIPE then ends this process, as intended.
    auto const job = ReadJobOfKind<Engine::PrepareJob>();
    RequireStaging();
    bool const hasTarget = job.kind != Engine::PayloadKind::WholeBundle;
    if (hasTarget)
    {
        RequireFolder(HelperDescriptors::TARGET);
    }
    Installer::PrepareUpdate(
        job, {HelperDescriptors::STAGING, HelperDescriptors::ARCHIVE, hasTarget ? HelperDescriptors::TARGET : -1},
        report);
    return true;
}

bool Install(Installer::ReportChannel& report)
{
    // The host will end, and its session with it.
    ::signal(SIGPIPE, SIG_IGN);
    ::signal(SIGCHLD, SIG_DFL); // if it is ignored, the system does not report how a child has ended
    ::setsid();
    auto const job = ReadJobOfKind<Engine::InstallJob>();
    RequireFolder(HelperDescriptors::PARENT);
    RequireStaging();
    if (job.record)
    {
        RequireFolder(HelperDescriptors::RECORDS);
    }
    return Installer::InstallUpdate(job,
                                    {HelperDescriptors::STAGING, HelperDescriptors::PARENT, HelperDescriptors::HOST,
                                     HelperDescriptors::RECORDS, HelperDescriptors::ARGUMENTS},
                                    report);
}

bool Recover(Installer::ReportChannel& report)
{
    ::signal(SIGPIPE, SIG_IGN);
    auto const job = ReadJobOfKind<Engine::RecoverJob>();
    RequireFolder(HelperDescriptors::PARENT);
    Installer::SwapLock const lock(HelperDescriptors::PARENT, job.targetName);
    Installer::Recovery const recovery = Installer::RecoverSwap(HelperDescriptors::PARENT, job);
    bool const isTellable = recovery.failedVersion.size() <= Engine::HELPER_REPORT_MAX_TEXT_BYTES;
    if (!recovery.failedVersion.empty() && isTellable)
    {
        report.Send(Engine::FailedVersionReport{recovery.failedVersion});
    }
    report.Send(Engine::RecoveredReport{recovery.action});
    return true;
}

bool Rehearse(Installer::ReportChannel& report)
{
    auto const job = ReadJobOfKind<Engine::RehearseJob>();
    RequireFolder(HelperDescriptors::PARENT);
    RequireStaging();
    Installer::Rehearse(job, {HelperDescriptors::STAGING, HelperDescriptors::PARENT, HelperDescriptors::HOST});
    report.Send(Engine::RehearsedReport{});
    return true;
}

} // namespace

int main(int count, char** arguments)
{
    std::string_view const mode = count == 2 ? arguments[1] : "";
    bool (*const run)(Installer::ReportChannel&) = mode == "prepare"    ? &Prepare
                                                   : mode == "install"  ? &Install
                                                   : mode == "recover"  ? &Recover
                                                   : mode == "rehearse" ? &Rehearse
                                                                        : nullptr;
    if (!run)
    {
        return EXIT_USAGE;
    }
    DropEnvironment(arguments);
    SettleDescriptors();
    ::umask(CREATION_MASK);
    ::signal(SIGXFSZ, SIG_IGN); // a file that may not grow causes an error of the writing call
    if (::chdir("/") != 0)
    {
        return EXIT_USAGE;
    }
    Installer::ReportChannel report(HelperDescriptors::REPORT);
    try
    {
        return run(report) ? 0 : EXIT_REFUSED;
    }
    catch (UpdateRefusal const& refusal)
    {
        report.Send(Engine::RefusedReport{refusal.Fault(), refusal.ErrorNumber()});
    }
    catch (std::exception const&) // out of memory
    {
        report.Send(Engine::RefusedReport{UpdateFault::SystemLimitReached, ENOMEM});
    }
    return EXIT_REFUSED;
}
