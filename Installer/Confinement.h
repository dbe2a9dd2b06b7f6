// Confinement.h: takes rights away from the running process for good.
// Thread: the process' only one; irrevocable. Ownership: descriptors stay the caller's.
#pragma once

#include <vector>

namespace Pelnar::Installer
{

/// From here on the process gains no privileges; where the kernel has Landlock, it opens and makes files only below
/// \a writableFolderFd, reads besides only below \a readableFolderFds, makes no device, FIFO or socket, runs no program
/// and opens no connection. Throws UpdateRefusal: ConfinementFailed when the kernel has it and does not do it.
void ConfineTo(int writableFolderFd, std::vector<int> const& readableFolderFds);

} // namespace Pelnar::Installer
