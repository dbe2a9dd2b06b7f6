// SealedMemory_p.h: files in memory that nobody can change once they are sealed.
// Thread: any. Ownership: the caller's. Each function throws UpdateRefusal (HelperUnusable) where the system refuses.
#pragma once

#include "Engine/core/delta/TreeAccess.h"

namespace Pelnar::Engine
{

/// An empty file, named for whoever looks at the process, with these further flags of memfd_create.
UniqueFd MakeMemoryFile(char const* name, unsigned flags);
void AppendToMemory(UniqueFd const& file, Bytes bytes);
void SealMemory(UniqueFd const& file);

} // namespace Pelnar::Engine
