// CallbackRules_p.h: what each of the framework's callbacks means in each state. Plain C++, private to the session.
// Thread: values. A value outside the six states has no behaviour anywhere.
#pragma once

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SessionState_p.h"

namespace Pelnar::App::Session
{

/// What the end of a check asks of the session.
enum class OutcomeReaction
{
    Nothing,          ///< the request goes on, or is over already
    ReportAndIdle,    ///< the context asked: it is told, then the session is idle
    Idle,             ///< nobody asked: the session is idle
    ShowErrorAndIdle, ///< the user asked for an installation: he is told, then the session is idle
    Unspecified,      ///< one error record and nothing else
};

OutcomeReaction ReactionToFound(State state);
OutcomeReaction ReactionToNotFound(State state);
OutcomeReaction ReactionToAbort(State state);

/// Whether the application may be relaunched after an installation.
enum class RelaunchReaction
{
    Allowed,
    Refused,
    Unspecified, ///< one error record; the relaunch is allowed, but the application is not asked to quit
};

RelaunchReaction ReactionToRelaunch(State state);

/// True when the callback ends an installation on quit that the session knows of.
[[nodiscard]] bool IsCancelledInstallExpected(State state);

} // namespace Pelnar::App::Session
