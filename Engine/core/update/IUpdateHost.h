// IUpdateHost.h: the updater's delegate as a check and its update see it. An exception of an operation counts as a
// failure of the application. Any operation may run its own event loop.
// Thread: the Qt main thread. Ownership: outlives the checks and updates that use it.
#pragma once

#include "Engine/core/check/BackOff.h"
#include "Engine/core/check/CheckRun.h"

#include <QString>

#include <functional>

namespace Pelnar::Engine
{

/// Whether the application restarts after an immediate installation.
enum class RelaunchWish
{
    StayClosed,
    Relaunch,
};

enum class RelaunchAnswer
{
    Refused, ///< nothing is installed
    Allowed,
};

/// CheckEnded is called when the feed has been processed, and is not the last call.
class IUpdateHost : public ICheckHost
{
public:
    /// The update of \a place is prepared. \a installNow installs it immediately, during this call or later. It may be
    /// kept for any time. It does nothing when called a second time or too late.
    virtual void TellWillInstallOnQuit(ItemIndex const& place, std::function<void(RelaunchWish)> const& installNow) = 0;
    virtual void TellCancelledInstallOnQuit(ItemIndex const& place) = 0;
    virtual RelaunchAnswer ShouldRelaunch() = 0;
    /// The bundle to start after the installation; empty for the installed one.
    virtual QString PathToRelaunch() = 0;
    /// The installing helper waits for this process to end.
    virtual void TellWillRelaunch() = 0;

    /// A person does not want to see this version again.
    virtual void SkipVersion(QString const& version) = 0;
    virtual void StoreBackOff(BackOffState const& state) = 0;

    /// The last call. The check may be deleted later (deleteLater) from now on.
    virtual void UpdateEnded() = 0;
};

} // namespace Pelnar::Engine
