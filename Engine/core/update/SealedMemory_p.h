// SealedMemory_p.h: files in memory that nobody can change after they are sealed.
// Each function throws UpdateRefusal if the system refuses: HelperUnusable, or SealedMemoryUnavailable if it has no
// such files.
#pragma once

#include "Engine/core/base/Descriptor.h"

namespace Pelnar::Engine
{

constexpr unsigned EXECUTABLE_MEMORY = 0x10; ///< MFD_EXEC, which the oldest supported headers do not define

/// An empty file, with this name in lists of open files, and with these further flags of memfd_create.
UniqueFd MakeMemoryFile(char const* name, unsigned flags);
void AppendToMemory(UniqueFd const& file, Bytes bytes);
void SealMemory(UniqueFd const& file);

} // namespace Pelnar::Engine
