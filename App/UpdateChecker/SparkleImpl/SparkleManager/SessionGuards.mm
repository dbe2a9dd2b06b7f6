#include "App/UpdateChecker/SparkleImpl/Choice/LogSites.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"

namespace Pelnar::App
{
namespace
{

bool Ensure(bool holds, Core::LogSite const& site, char const* complaint)
{
    if (!holds)
    {
        Core::Write(site, complaint);
    }
    return holds;
}

} // namespace

bool SparkleManager::Impl::EnsureContext() const
{
    return Ensure(context != nullptr, Session::Sites::ENSURE_CONTEXT, "Update context is NULL");
}

bool SparkleManager::Impl::EnsureCheckFinishedCallback() const
{
    return Ensure(static_cast<bool>(context->checkFinishedCallback), Session::Sites::ENSURE_CALLBACK,
                  "CheckFinishedCallback is NULL");
}

bool SparkleManager::Impl::EnsureLocalVersion() const
{
    return Ensure(context->localVersion.IsValid(), Session::Sites::ENSURE_LOCAL_VERSION, "Invalid local version");
}

bool SparkleManager::Impl::EnsureRemoteVersion() const
{
    return Ensure(context->remoteVersion.IsValid(), Session::Sites::ENSURE_REMOTE_VERSION, "Invalid remote version");
}

bool SparkleManager::Impl::EnsureVersionOperators() const
{
    return Ensure(context->versionLess && context->versionEqual, Session::Sites::ENSURE_OPERATORS,
                  "Invalid version operators");
}

bool SparkleManager::Impl::EnsureRemoteVersionIsGreaterThanLocal() const
{
    // Held during the calls: an operator may replace the context.
    std::shared_ptr<SparkleUpdateContext> const lent = context;
    Core::Version const& local = lent->localVersion;
    Core::Version const& remote = lent->remoteVersion;
    // Deliberate: both "less" and "not equal" are checked, although one is enough for consistent operators.
    return Ensure(lent->versionLess(local, remote) && !lent->versionEqual(local, remote),
                  Session::Sites::ENSURE_REMOTE_GREATER, "Remote version is not greater than local version");
}

} // namespace Pelnar::App
