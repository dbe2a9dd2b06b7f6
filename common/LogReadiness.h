// LogReadiness.h: lets records be written by glog before a host has initialized it, of which glog would warn.
// Thread: any. Ownership: none. It is linked into one library of the process, which remembers who has initialized glog.
#pragma once

namespace Pelnar::Core
{

enum class GlogOwner
{
    Host,
    UpdateChecker, ///< records go to standard error, and into no file
};

/// Initializes glog, unless that is done already; says who has done it.
GlogOwner ReadyLog();

} // namespace Pelnar::Core
