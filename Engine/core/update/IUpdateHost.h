// IUpdateHost.h: the updater's delegate as a check and the update that it leads to see it.
// What an operation throws is taken for a failure of the application. Any of them may run an event loop of its own.
// Thread: the Qt main thread. Ownership: outlives what it hosts.
#pragma once

#include "Engine/core/check/BackOff.h"
#include "Engine/core/check/CheckRun.h"

#include <QString>

#include <functional>

namespace Pelnar::Engine
{

/// Whether the application comes back after an installation that is asked for at once.
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

/// CheckEnded is called when the feed has been dealt with, and is not the last call.
class IUpdateHost : public ICheckHost
{
public:
    /// The update of \a place is prepared. \a installNow installs it at once, during this call or later; it may be kept
    /// for as long as anybody likes, and does nothing when it is called a second time or too late.
    virtual void TellWillInstallOnQuit(ItemPlace const& place, std::function<void(RelaunchWish)> const& installNow) = 0;
    virtual void TellCancelledInstallOnQuit(ItemPlace const& place) = 0;
    virtual RelaunchAnswer ShouldRelaunch() = 0;
    /// Of the bundle to start after the installation; empty for the installed one.
    virtual QString PathToRelaunch() = 0;
    /// The installing helper waits for this process to end.
    virtual void TellWillRelaunch() = 0;

    /// A person wants to hear no more of this version.
    virtual void SkipVersion(QString const& version) = 0;
    virtual void StoreBackOff(BackOffState const& state) = 0;

    /// The last call. The check may be deleted later (deleteLater) from here on.
    virtual void UpdateEnded() = 0;
};

} // namespace Pelnar::Engine
