// CloseDescriptors.h: keeps a process's open descriptors from the programs that it starts, on every kernel.
// May be called between vfork and exec: it allocates no memory and takes no lock.
#pragma once

namespace Pelnar::Engine
{

/// Every descriptor from \a first on will be closed when this process executes another program.
void CloseOnExecFrom(int first);
/// Closes every descriptor from \a first on.
void CloseFrom(int first);

} // namespace Pelnar::Engine
