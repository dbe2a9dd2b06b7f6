#include "Engine/core/update/PhaseRules.h"

namespace Pelnar::Engine
{
namespace
{

using Phase = RunPhase;
using Event = RunEvent;
using Steps = IUpdateSteps;

struct Row
{
    Phase phase;
    Event event;
    RunTransition transition;
    std::optional<UpdateMode> mode = std::nullopt; ///< empty: both
};

constexpr Row ROWS[] = {
    {Phase::Starting, Event::Started, {&Steps::OpenTarget, Phase::Starting}},
    {Phase::Starting, Event::PageOffered, {&Steps::Ask, Phase::Asking}},
    {Phase::Starting, Event::Refused, {&Steps::End, Phase::Ended}},
    {Phase::Starting, Event::TargetOpened, {&Steps::Ask, Phase::Asking}, UpdateMode::Windows},
    {Phase::Starting, Event::TargetOpened, {&Steps::Download, Phase::Downloading}, UpdateMode::Silent},

    {Phase::Asking, Event::Agreed, {&Steps::Download, Phase::Downloading}},
    {Phase::Asking, Event::Skipped, {&Steps::Skip, Phase::Asking}},
    {Phase::Asking, Event::PutOff, {&Steps::Finish, Phase::Ended}},
    {Phase::Asking, Event::HostRaised, {&Steps::Finish, Phase::Ended}},

    {Phase::Downloading, Event::Downloaded, {&Steps::Prepare, Phase::Preparing}},
    {Phase::Downloading, Event::CandidateFailed, {&Steps::DownloadNext, Phase::Downloading}},
    {Phase::Downloading, Event::LastCandidateFailed, {&Steps::Finish, Phase::Ended}},
    {Phase::Downloading, Event::Cancelled, {&Steps::Finish, Phase::Ended}},

    {Phase::Preparing, Event::Prepared, {&Steps::AskToInstall, Phase::Ready}, UpdateMode::Windows},
    {Phase::Preparing, Event::Prepared, {&Steps::OfferOnQuit, Phase::Ready}, UpdateMode::Silent},
    {Phase::Preparing, Event::CandidateFailed, {&Steps::DownloadNext, Phase::Downloading}},
    {Phase::Preparing, Event::LastCandidateFailed, {&Steps::Finish, Phase::Ended}},
    {Phase::Preparing, Event::Cancelled, {&Steps::Finish, Phase::Ended}},

    {Phase::Ready, Event::InstallNow, {&Steps::AskHost, Phase::Deciding}},
    {Phase::Ready, Event::Offered, {&Steps::Arm, Phase::Armed}},
    {Phase::Ready, Event::Declined, {&Steps::Drop, Phase::Dropping}},
    {Phase::Ready, Event::Cancelled, {&Steps::Finish, Phase::Ended}},
    {Phase::Ready, Event::HostRaised, {&Steps::Finish, Phase::Ended}},

    {Phase::Deciding, Event::InstallAllowed, {&Steps::Arm, Phase::Armed}},
    {Phase::Deciding, Event::RelaunchAllowed, {&Steps::AskForPath, Phase::Deciding}},
    {Phase::Deciding, Event::PathGiven, {&Steps::Relaunch, Phase::Relaunching}},
    {Phase::Deciding, Event::Declined, {&Steps::Drop, Phase::Dropping}},
    {Phase::Deciding, Event::HelperFailed, {&Steps::Finish, Phase::Ended}},
    {Phase::Deciding, Event::HostRaised, {&Steps::Finish, Phase::Ended}},

    {Phase::Armed, Event::InstallNow, {&Steps::AskHost, Phase::Deciding}},
    {Phase::Armed, Event::ApplicationQuits, {&Steps::AskHost, Phase::Armed}},
    {Phase::Armed, Event::SessionEnds, {&Steps::Drop, Phase::Dropping}},
    {Phase::Armed, Event::Declined, {&Steps::Drop, Phase::Dropping}},
    {Phase::Armed, Event::HelperFailed, {&Steps::Finish, Phase::Ended}},
    {Phase::Armed, Event::HostRaised, {&Steps::Finish, Phase::Ended}},

    {Phase::Relaunching, Event::HelperWaits, {&Steps::TellRelaunch, Phase::Relaunching}},
    {Phase::Relaunching, Event::SessionEnds, {&Steps::Drop, Phase::Dropping}},
    {Phase::Relaunching, Event::Declined, {&Steps::Drop, Phase::Dropping}},
    {Phase::Relaunching, Event::HelperFailed, {&Steps::Finish, Phase::Ended}},
    {Phase::Relaunching, Event::HostRaised, {&Steps::Finish, Phase::Ended}},

    {Phase::Dropping, Event::Dropped, {&Steps::Finish, Phase::Ended}},
    {Phase::Dropping, Event::HostRaised, {&Steps::Finish, Phase::Ended}},
};

} // namespace

std::optional<RunTransition> TransitionAt(RunPhase phase, RunEvent event, UpdateMode mode)
{
    for (Row const& row : ROWS)
    {
        if (row.phase == phase && row.event == event && row.mode.value_or(mode) == mode)
        {
            return row.transition;
        }
    }
    return std::nullopt;
}

} // namespace Pelnar::Engine
