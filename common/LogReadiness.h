// LogReadiness.h: initializes glog before a record is written, because glog would otherwise warn.
// It is linked into one library of the process, which remembers who has initialized glog.
#pragma once

namespace Pelnar::Core
{

enum class GlogOwner
{
    Host,
    UpdateChecker, ///< records go to standard error, and to no file
};

/// Initializes glog unless it is initialized; returns who has initialized it.
GlogOwner ReadyLog();

} // namespace Pelnar::Core
