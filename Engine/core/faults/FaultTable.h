// FaultTable.h: one failure's row of the tables ErrorCauses.def and UpdateFaults.def. Constants.
#pragma once

#include "Engine/core/faults/ErrorCause.h"
#include "Engine/core/faults/UpdateFault.h"

namespace Pelnar::Engine
{

/// Who has to correct it.
enum class Blame
{
    Nobody,      ///< it was requested, or it passes by itself
    Network,     ///< the connection to the server
    Server,      ///< the server's answers
    Feed,        ///< the feed's address, its content, or the choice from it
    Archive,     ///< the downloaded archive: another download may help
    Publisher,   ///< another download does not help
    Application, ///< its installation, or its answers
    Computer,    ///< its disk, its system, the rights of its user
};

struct FaultEntry
{
    int number; ///< the code of the underlying error
    char const* name;
    ErrorCode code;
    Blame blame;
    char const* sentence;                   ///< for a person: what happened and what to do
    char const* downloadSentence = nullptr; ///< replaces it if an archive was fetched and not the feed
    char const* lineSentence = nullptr;     ///< follows it, and names the line of the feed
};

/// For a number without a row, the row of ErrorCause::Fault.
FaultEntry const& EntryOf(ErrorCause cause);
/// For a number without a row, the row of UpdateFault::None.
FaultEntry const& EntryOf(UpdateFault fault);

} // namespace Pelnar::Engine
