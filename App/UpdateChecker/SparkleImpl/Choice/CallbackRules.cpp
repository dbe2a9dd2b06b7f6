#include "App/UpdateChecker/SparkleImpl/Choice/CallbackRules.h"

namespace Pelnar::App::Session
{

CheckReaction ReactionToResult(State state)
{
    switch (state)
    {
    case State::FETCHING_INFO:
        return CheckReaction::ReportAndIdle;
    case State::PREPARING_TO_SHOW_CHANGELOG:
        // From now on the framework's own windows continue.
        return CheckReaction::Idle;
    case State::SILENT_DOWNLOADING:
        // Deliberate: a download follows, or the framework sends an abort, which ends the request.
        return CheckReaction::Nothing;
    case State::WAITING:
    case State::SILENT_INSTALLING:
    case State::SILENT_ABORTING:
        break;
    }
    return CheckReaction::Unspecified;
}

AbortReaction ReactionToAbort(State state)
{
    switch (state)
    {
    case State::WAITING:
    case State::SILENT_ABORTING:
        return AbortReaction::Nothing;
    case State::FETCHING_INFO:
        return AbortReaction::ReportAndIdle;
    case State::PREPARING_TO_SHOW_CHANGELOG:
    case State::SILENT_DOWNLOADING:
        return AbortReaction::Idle;
    case State::SILENT_INSTALLING:
        return AbortReaction::ShowErrorAndIdle;
    }
    return AbortReaction::Unspecified;
}

RelaunchReaction ReactionToRelaunch(State state)
{
    switch (state)
    {
    case State::WAITING:
    case State::SILENT_INSTALLING:
        return RelaunchReaction::Allowed;
    case State::SILENT_ABORTING:
        return RelaunchReaction::Refused;
    case State::FETCHING_INFO:
    case State::PREPARING_TO_SHOW_CHANGELOG:
    case State::SILENT_DOWNLOADING:
        break;
    }
    return RelaunchReaction::Unspecified;
}

bool IsCancelledInstallExpected(State state)
{
    return state == State::SILENT_INSTALLING || state == State::SILENT_ABORTING;
}

} // namespace Pelnar::App::Session
