#include "common/LogReadiness.h"

#include <glog/logging.h>

#include <mutex>

namespace Pelnar::Core
{
namespace
{

constexpr char PROGRAM_NAME[] = "PelnarUpdateChecker"; ///< the name that glog gives a process whose host does not use
                                                       ///< glog

} // namespace

GlogOwner ReadyLog()
{
    static std::mutex mutex;
    static GlogOwner owner = GlogOwner::Host;
    std::lock_guard const lock(mutex);
    if (!google::IsGoogleLoggingInitialized())
    {
        google::InitGoogleLogging(PROGRAM_NAME);
        for (google::LogSeverity severity = google::GLOG_INFO; severity < google::NUM_SEVERITIES; ++severity)
        {
            google::SetLogDestination(severity, "");
        }
        FLAGS_stderrthreshold = google::GLOG_INFO;
        owner = GlogOwner::UpdateChecker;
    }
    return owner;
}

} // namespace Pelnar::Core
