// BundleRights.h: copies the access rights of the installed bundle to its replacement.
#pragma once

#include <string>

#include <sys/types.h>

namespace Pelnar::Installer
{

struct BundleRights
{
    mode_t mode = 0755; ///< of the bundle's folder
    gid_t group = 0;
    std::string accessList; ///< of the bundle's folder, in the kernel's format; empty: none
};

/// Throws UpdateRefusal.
BundleRights RightsOf(int bundleFd);

/// The permission bits that files in a bundle with \a rights may have. Users whom its folder excludes get no rights
/// from them. If an access list decides about that, the bits stay as packed.
mode_t BitsWithin(BundleRights const& rights);

/// Gives these rights to the bundle at \a bundleFd, whose files are as packed: its folder gets the mode and the access
/// list, and all its content gets the group and no more than BitsWithin(). Throws UpdateRefusal: RightsNotKept if any
/// user could read more or less of it than of the installed bundle. Returns true if it changed something; the change is
/// not on the disk yet.
[[nodiscard]] bool GiveRights(int bundleFd, BundleRights const& rights);

} // namespace Pelnar::Installer
