// BundleRights.h: who may use a bundle, carried over from the installed one to the one that takes its place.
// Thread: any. Ownership: descriptors stay the caller's.
#pragma once

#include <string>

#include <sys/types.h>

namespace Pelnar::Installer
{

struct BundleRights
{
    mode_t mode = 0755; ///< of the bundle's folder
    gid_t group = 0;
    std::string accessList; ///< of the bundle's folder, as the kernel gives it; empty: none
};

/// Throws UpdateRefusal.
BundleRights RightsOf(int bundleFd);

/// The permission bits that files in a bundle with \a rights may have. Whom its folder keeps out, they give nothing;
/// where an access list decides about that, they are as they were packed.
mode_t BitsWithin(BundleRights const& rights);

/// Gives the bundle at \a bundleFd, whose files are as they were packed, these rights: to its folder its mode and its
/// access list, to all that is in it the group and no more than BitsWithin(). Throws UpdateRefusal: RightsNotKept, when
/// somebody could read more or less of it than of the installed one. True when something was changed, which is not on
/// the disk yet.
[[nodiscard]] bool GiveRights(int bundleFd, BundleRights const& rights);

} // namespace Pelnar::Installer
