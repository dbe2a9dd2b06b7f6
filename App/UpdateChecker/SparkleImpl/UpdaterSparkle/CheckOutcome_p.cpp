#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/CheckOutcome_p.h"

#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"

namespace Pelnar::App
{

UpdateCheckResult OutcomeOf(SparkleUpdateContext const& context)
{
    Core::Version const& remote = context.remoteVersion;
    Core::Version const& local = context.localVersion;
    if (context.versionLess(remote, local) || context.versionEqual(remote, local))
    {
        return UpdateCheckResult::NoUpdate;
    }
    return remote.Major() > local.Major() ? UpdateCheckResult::MajorUpdateAvailable
                                          : UpdateCheckResult::UpdateAvailable;
}

} // namespace Pelnar::App
