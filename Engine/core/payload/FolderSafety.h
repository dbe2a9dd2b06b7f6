// FolderSafety.h: who besides this user and the administrator may change what stands in a folder.
// Thread: any; no state. Ownership: descriptors stay the caller's.
#pragma once

#include <string>

#include <sys/types.h>

namespace Pelnar::Engine
{

enum class FolderSafety
{
    Safe,
    OfAnotherUser, ///< it belongs to somebody who is neither this user nor the administrator
    OwnerHidden,   ///< a user namespace hides whose it is: the administrator looks like any other user there
    OpenToGroup,   ///< a group may write there that has other members
    OpenToAll,
    Shared, ///< everybody may write there, but only the owner of a name may take it away: a folder such as /tmp
    Unreadable,
};

/// The first folder on the way up that is not safe.
struct FolderFinding
{
    FolderSafety safety = FolderSafety::Safe;
    std::string path; ///< of that folder; empty when there is none, or its path cannot be told
    gid_t group = 0;  ///< for OpenToGroup
};

/// Looks at the open folder and at each one above it. The folder itself is never Shared and safe; those above it may
/// be, for nobody else takes this user's names away there. A group that has no member but this user counts as nobody.
FolderFinding LookUpToTheRoot(int folderFd);

/// True when LookUpToTheRoot finds nothing.
[[nodiscard]] bool IsSafeUpToTheRoot(int folderFd);

/// True when nobody but this user and the administrator may change what is open there: a file's bytes, a folder's
/// names.
[[nodiscard]] bool IsSafeByItself(int fd);

/// The group's name, else its number.
std::string GroupName(gid_t group);

} // namespace Pelnar::Engine
