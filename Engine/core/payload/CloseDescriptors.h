// CloseDescriptors.h: keeps what a process has open from the programs that it starts, on every kernel.
// Thread: any. May be called between vfork and exec: it takes no memory and no lock.
#pragma once

namespace Pelnar::Engine
{

/// Every descriptor from \a first on is closed when this process becomes another program.
void CloseOnExecFrom(int first);
/// Every descriptor from \a first on is closed.
void CloseFrom(int first);

} // namespace Pelnar::Engine
