// FaultTable.h: what the tables ErrorCauses.def and UpdateFaults.def say of one failure.
// Thread: any; constants.
#pragma once

#include "Engine/core/faults/ErrorCause.h"
#include "Engine/core/faults/UpdateFault.h"

namespace Pelnar::Engine
{

/// Who has to mend it.
enum class Blame
{
    Nobody,      ///< it was wished for, or it passes by itself
    Network,     ///< the way to the server
    Server,      ///< what the server answers
    Feed,        ///< its address, what stands in it, or what was chosen from it
    Archive,     ///< what was downloaded: another download may help
    Publisher,   ///< another download does not help
    Application, ///< as it is installed, or what it answers
    Computer,    ///< its disk, its system, the rights of its user
};

struct FaultEntry
{
    int number; ///< the code of the underlying error
    char const* name;
    ErrorCode code;
    Blame blame;
    char const* sentence;         ///< for a person: what happened and what to do
    char const* downloadSentence; ///< instead of it where an archive was fetched, not the feed; or nullptr
};

/// A number that has no row is described as ErrorCause::Fault is.
FaultEntry const& EntryOf(ErrorCause cause);
/// A number that has no row is described as UpdateFault::None is.
FaultEntry const& EntryOf(UpdateFault fault);

} // namespace Pelnar::Engine
