#include "App/UpdateChecker/SparkleImpl/Choice/CallbackRules.h"

namespace Pelnar::App::Session
{

OutcomeReaction ReactionToFound(State state)
{
    switch (state)
    {
    case State::FETCHING_INFO:
        return OutcomeReaction::ReportAndIdle;
    case State::PREPARING_TO_SHOW_CHANGELOG:
        // From now on the framework's own windows continue.
        return OutcomeReaction::Idle;
    case State::SILENT_DOWNLOADING:
        return OutcomeReaction::Nothing;
    case State::WAITING:
    case State::SILENT_INSTALLING:
    case State::SILENT_ABORTING:
        break;
    }
    return OutcomeReaction::Unspecified;
}

OutcomeReaction ReactionToNotFound(State state)
{
    switch (state)
    {
    case State::FETCHING_INFO:
        return OutcomeReaction::ReportAndIdle;
    case State::PREPARING_TO_SHOW_CHANGELOG:
        return OutcomeReaction::Idle;
    case State::SILENT_DOWNLOADING:
        // Deliberate: the framework then sends an abort, which ends the request.
        return OutcomeReaction::Nothing;
    case State::WAITING:
    case State::SILENT_INSTALLING:
    case State::SILENT_ABORTING:
        break;
    }
    return OutcomeReaction::Unspecified;
}

OutcomeReaction ReactionToAbort(State state)
{
    switch (state)
    {
    case State::WAITING:
    case State::SILENT_ABORTING:
        return OutcomeReaction::Nothing;
    case State::FETCHING_INFO:
        return OutcomeReaction::ReportAndIdle;
    case State::PREPARING_TO_SHOW_CHANGELOG:
    case State::SILENT_DOWNLOADING:
        return OutcomeReaction::Idle;
    case State::SILENT_INSTALLING:
        return OutcomeReaction::ShowErrorAndIdle;
    }
    return OutcomeReaction::Unspecified;
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
