// SessionRecords.h: the two records that most entry points of the session share. Plain C++, private to the session.
// Thread: the Qt main thread.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/SessionState.h"
#include "common/LogSite.h"

namespace Pelnar::App::Session
{

/// "Current state = " and the state's name.
void WriteCurrentState(Core::LogSite const& site, State state);

/// A callback arrived in a state for which it has no behaviour.
void WriteUnspecifiedState(Core::LogSite const& site, State state);

} // namespace Pelnar::App::Session
