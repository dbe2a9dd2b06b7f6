// A helper that gets its instruction from its job: the name of the new version. It is started like the real one.

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/helper/HelperReport.h"
#include "Engine/core/helper/UpdateJob.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#if __has_feature(address_sanitizer)
/// The probe counts signals whose handling is not the default. The sanitizer must not change any.
extern "C" char const* __asan_default_options()
{
    return "handle_segv=0:handle_sigbus=0:handle_sigfpe=0:handle_sigill=0";
}
#endif

namespace
{

using namespace Pelnar::Engine;

void Say(std::string const& text)
{
    static_cast<void>(
        !WriteAll(HelperDescriptors::REPORT, Bytes(reinterpret_cast<std::uint8_t const*>(text.data()), text.size())));
}

std::vector<int> OpenDescriptors()
{
    std::vector<int> numbers;
    DIR* const folder = ::opendir("/proc/self/fd");
    while (dirent const* const entry = ::readdir(folder))
    {
        if (entry->d_name[0] != '.' && std::atoi(entry->d_name) != ::dirfd(folder))
        {
            numbers.push_back(std::atoi(entry->d_name));
        }
    }
    ::closedir(folder);
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

int UnusualSignals()
{
    sigset_t blocked;
    ::sigprocmask(SIG_BLOCK, nullptr, &blocked);
    int count = 0;
    for (int signal = 1; signal < SIGRTMIN; ++signal)
    {
        struct sigaction action
        {
        };
        ::sigaction(signal, nullptr, &action);
        count += ::sigismember(&blocked, signal) == 1 || action.sa_handler != SIG_DFL ? 1 : 0;
    }
    return count;
}

/// Into the file "seen" of the staging folder.
void Describe(int count, char** arguments)
{
    std::string text;
    for (int i = 1; i < count; ++i)
    {
        text += std::string(arguments[i]) + ' ';
    }
    text += "variables:" + std::string(*environ ? *environ : "none") + " descriptors:";
    for (int const number : OpenDescriptors())
    {
        text += std::to_string(number) + ',';
    }
    text += " signals:" + std::to_string(UnusualSignals());
    UniqueFd const file(::openat(HelperDescriptors::STAGING, "seen", O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    static_cast<void>(!WriteAll(file.Get(), Bytes(reinterpret_cast<std::uint8_t const*>(text.data()), text.size())));
}

int Obey(std::string const& order, int count, char** arguments)
{
    if (order == "describe")
    {
        Describe(count, arguments);
        return 0;
    }
    if (order == "wait")
    {
        Say(EncodeHelperReport(InstalledReport{}));
        char byte = 0;
        static_cast<void>(!::read(HelperDescriptors::ARCHIVE, &byte, 1));
        return 0;
    }
    if (order == "many")
    {
        for (std::uint64_t done = 0; done < 20000; ++done)
        {
            Say(EncodeHelperReport(ProgressReport{HelperPhase::Unpacking, done, 20000}));
        }
        Say("installed"); // without the end of the line
        return 0;
    }
    if (order == "nonsense")
    {
        Say("installed\nnonsense\ninstalled\n");
        ::pause();
    }
    if (order == "endless")
    {
        Say(std::string(HELPER_REPORT_MAX_BYTES, 'x'));
        ::pause();
    }
    if (order == "crash")
    {
        ::raise(SIGKILL);
    }
    return std::atoi(order.c_str());
}

} // namespace

int main(int count, char** arguments)
{
    std::string job(UPDATE_JOB_MAX_BYTES, '\0');
    ssize_t const size = ::read(HelperDescriptors::JOB, job.data(), job.size());
    auto const decoded =
        DecodeUpdateJob(std::string_view(job).substr(0, static_cast<std::size_t>(std::max<ssize_t>(size, 0))));
    if (!decoded || !std::holds_alternative<PrepareJob>(*decoded))
    {
        return EXIT_FAILURE;
    }
    return Obey(std::get<PrepareJob>(*decoded).expectedVersion, count, arguments);
}
