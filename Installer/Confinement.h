// Confinement.h: restricts the rights of the running process permanently.
// Thread: the process's only one; irrevocable.
#pragma once

#include <vector>

namespace Pelnar::Installer
{

/// From now on the process gains no privileges. If the kernel has Landlock, the process opens and creates files only
/// below \a writableFolderFd, also reads below \a readableFolderFds, creates no device, FIFO or socket, runs no program
/// and opens no connection. Throws UpdateRefusal: ConfinementFailed if the kernel has Landlock but refuses.
void ConfineTo(int writableFolderFd, std::vector<int> const& readableFolderFds);

} // namespace Pelnar::Installer
