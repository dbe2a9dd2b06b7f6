// SealedMemory_p.h: files in memory that nobody can change once they are sealed.
// Thread: any. Ownership: the caller's. Each function throws UpdateRefusal where the system refuses: HelperUnusable,
// and SealedMemoryUnavailable where it has no such files.
#pragma once

#include "Engine/core/delta/TreeAccess.h"

namespace Pelnar::Engine
{

constexpr unsigned EXECUTABLE_MEMORY = 0x10; ///< MFD_EXEC, which the oldest supported headers do not name

/// An empty file, named for anyone who looks at the process, with these further flags of memfd_create.
UniqueFd MakeMemoryFile(char const* name, unsigned flags);
void AppendToMemory(UniqueFd const& file, Bytes bytes);
void SealMemory(UniqueFd const& file);

} // namespace Pelnar::Engine
