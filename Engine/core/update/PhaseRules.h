// PhaseRules.h: the phases of an update, and the step that follows each event in each phase. An event without a row
// does nothing. Pure.
#pragma once

#include "Engine/core/update/UpdateRules.h"

#include <optional>

namespace Pelnar::Engine
{

enum class RunPhase
{
    Starting,
    Asking,
    Downloading,
    Preparing,
    Ready,       ///< prepared; a person or the application is being asked
    Deciding,    ///< the application decides about an immediate installation
    Armed,       ///< a helper waits for the application's end, to install without a relaunch
    Relaunching, ///< a helper waits for the application's end, to install and restart it
    Dropping,    ///< the application hears that nothing is installed
    Ended,
};

enum class RunEvent
{
    Started,
    PageOffered, ///< the item is a page to read
    TargetOpened,
    Refused, ///< no update is possible here
    Skipped,
    PutOff,
    Agreed, ///< a person wants the update
    Downloaded,
    Prepared,
    CandidateFailed,     ///< another one is left
    LastCandidateFailed, ///< no other one is left
    Offered,             ///< the application has heard of the installation on quit
    InstallNow,
    InstallAllowed,
    RelaunchAllowed,
    PathGiven, ///< the application has said what to start
    Declined,  ///< by the application, or by the end of the desktop session
    Dropped,
    HelperWaits, ///< for the application's end
    HelperFailed,
    ApplicationQuits,
    SessionEnds, ///< the desktop's
    Cancelled,   ///< by a person
    HostRaised,  ///< an exception of the application
};

/// What an update does at a transition, in the new phase. A step ends in an event, or waits for one.
class IUpdateSteps
{
public:
    virtual ~IUpdateSteps() = default;
    virtual void OpenTarget() = 0;
    virtual void Ask() = 0;
    virtual void Skip() = 0;
    virtual void Download() = 0;
    virtual void Prepare() = 0;
    virtual void DownloadNext() = 0;
    virtual void AskToInstall() = 0;
    virtual void OfferOnQuit() = 0;
    virtual void AskHost() = 0;
    virtual void AskForPath() = 0;
    virtual void Arm() = 0;
    virtual void Relaunch() = 0;
    virtual void TellRelaunch() = 0;
    virtual void Drop() = 0;
    virtual void Finish() = 0; ///< closes the window, then as End
    virtual void End() = 0;
};

struct RunTransition
{
    void (IUpdateSteps::*step)();
    RunPhase next;
};
[[nodiscard]] std::optional<RunTransition> TransitionAt(RunPhase phase, RunEvent event, UpdateMode mode);

} // namespace Pelnar::Engine
