// FolderSafety.h: who besides this user and the administrator may change the content of a folder.
#pragma once

#include <string>

#include <sys/types.h>

namespace Pelnar::Engine
{

enum class FolderSafety
{
    Safe,
    OfAnotherUser, ///< it belongs to a user who is neither this user nor the administrator
    OwnerHidden,   ///< a user namespace hides the owner: the administrator looks like any other user there
    OpenToGroup,   ///< a group with other members may write there
    OpenToUser,    ///< an access list lets another user write there
    OpenToAll,
    Shared, ///< all users may write there, but only the owner of a name may remove it: a folder such as /tmp
    Unreadable,
};

/// The first unsafe folder on the way up.
struct FolderFinding
{
    FolderSafety safety = FolderSafety::Safe;
    std::string path; ///< of that folder; empty if all folders are safe, or if the path cannot be read
    id_t writer = 0;  ///< for OpenToGroup the group, for OpenToUser the user
};

/// Examines the open folder and each one above it. For the folder itself, Shared is not safe. For those above, Shared
/// is safe, because no other user can remove this user's names there. A group without members other than this user is
/// safe.
FolderFinding LookUpToTheRoot(int folderFd);

/// True if LookUpToTheRoot finds nothing.
[[nodiscard]] bool IsSafeUpToTheRoot(int folderFd);

/// True if only this user and the administrator may change the open object: a file's bytes, a folder's names.
[[nodiscard]] bool IsSafeByItself(int fd);

/// The group's name, otherwise its number.
std::string GroupName(gid_t group);
/// The user's name, otherwise its number.
std::string UserName(uid_t user);

} // namespace Pelnar::Engine
