// CallbackRules.h: the meaning of each of the framework's callbacks in each state. Plain C++, private to the session.
// Pure functions. A value outside the six states has no behaviour anywhere.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/SessionState.h"

namespace Pelnar::App::Session
{

/// What the session must do when a check has found an update, or none.
enum class CheckReaction
{
    Nothing,       ///< the request continues
    ReportAndIdle, ///< the context requested it: it is notified, then the session is idle
    Idle,          ///< nobody requested it: the session is idle
    Unspecified,   ///< one error record and nothing else
};

CheckReaction ReactionToResult(State state);

/// What the session must do when the framework gives up.
enum class AbortReaction
{
    Nothing,          ///< the request has already ended
    ReportAndIdle,    ///< as above
    Idle,             ///< as above
    ShowErrorAndIdle, ///< the user requested an installation: they see the error, then the session is idle
    Unspecified,      ///< one error record and nothing else
};

AbortReaction ReactionToAbort(State state);

/// Whether the application may be relaunched after an installation.
enum class RelaunchReaction
{
    Allowed,
    Refused,
    Unspecified, ///< one error record; the relaunch is allowed, but the application is not asked to quit
};

RelaunchReaction ReactionToRelaunch(State state);

/// True if the callback ends an installation on quit that the session knows of.
[[nodiscard]] bool IsCancelledInstallExpected(State state);

} // namespace Pelnar::App::Session
