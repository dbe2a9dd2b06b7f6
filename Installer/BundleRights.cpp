#include "Installer/BundleRights.h"

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/faults/UpdateFault.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::UpdateFault;
using Engine::UpdateRefusal;

constexpr char ACCESS_LIST[] = "system.posix_acl_access";
constexpr std::size_t ACCESS_LIST_MAX_BYTES = 64 * 1024; // of an attribute
constexpr mode_t CARRIED_BITS = 03777;                   // all bits except set-user-ID, which grants the owner's rights
constexpr uid_t SAME_OWNER = static_cast<uid_t>(-1);

std::string AccessListOf(int bundleFd)
{
    std::string list(ACCESS_LIST_MAX_BYTES, '\0');
    ssize_t const count = ::fgetxattr(bundleFd, ACCESS_LIST, list.data(), list.size());
    if (count < 0 && errno != ENODATA && errno != EOPNOTSUPP)
    {
        Engine::ThrowErrno(errno);
    }
    list.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return list;
}

[[noreturn]] void Fail()
{
    throw UpdateRefusal(UpdateFault::RightsNotKept, errno);
}

/// True if the group of the files makes a difference to any user.
bool IsGroupOfUse(BundleRights const& rights)
{
    return ((rights.mode >> 3) & 07) != (rights.mode & 07) || !rights.accessList.empty();
}

/// Removes an access list that a new file inherited from its parent folder.
void RemoveAccessList(int folderFd, std::string const& name)
{
    std::string const path = Engine::DescriptorPath(folderFd) + '/' + name;
    if (::lremovexattr(path.c_str(), ACCESS_LIST) != 0 && errno != ENODATA && errno != EOPNOTSUPP)
    {
        Fail();
    }
}

/// Sets the rights of the bundle's content.
void GiveRightsWithin(int bundleFd, BundleRights const& rights, BundleRights const& present)
{
    mode_t const bits = BitsWithin(rights);
    bool const hasForeignLists = rights.accessList.empty() && !present.accessList.empty();
    auto const give = [&](std::string const&, int folderFd, std::string const& name, struct stat const& status)
    {
        bool const isOfGroup = status.st_gid == rights.group;
        if (!isOfGroup && ::fchownat(folderFd, name.c_str(), SAME_OWNER, rights.group, AT_SYMLINK_NOFOLLOW) != 0 &&
            IsGroupOfUse(rights))
        {
            Fail();
        }
        if (hasForeignLists)
        {
            RemoveAccessList(folderFd, name);
        }
        mode_t const mode = status.st_mode & bits;
        bool const hasMode = S_ISLNK(status.st_mode) || mode == (status.st_mode & 07777u);
        if (!hasMode && ::fchmodat(folderFd, name.c_str(), mode, 0) != 0)
        {
            Fail();
        }
    };
    if (!Engine::WalkTree(bundleFd, give))
    {
        Engine::ThrowErrno(errno);
    }
}

} // namespace

BundleRights RightsOf(int bundleFd)
{
    struct stat status;
    if (::fstat(bundleFd, &status) != 0)
    {
        Engine::ThrowErrno(errno);
    }
    return {status.st_mode & CARRIED_BITS, status.st_gid, AccessListOf(bundleFd)};
}

mode_t BitsWithin(BundleRights const& rights)
{
    if (!rights.accessList.empty())
    {
        return 0777;
    }
    mode_t const group = (rights.mode & S_IXGRP) != 0 ? S_IRWXG : 0;
    mode_t const others = (rights.mode & S_IXOTH) != 0 ? S_IRWXO : 0;
    return S_IRWXU | group | others;
}

bool GiveRights(int bundleFd, BundleRights const& rights)
{
    BundleRights const present = RightsOf(bundleFd);
    bool const isOfGroup = present.group == rights.group;
    bool const hasMode = present.mode == rights.mode;
    bool const hasList = present.accessList == rights.accessList;
    if (isOfGroup && hasMode && hasList)
    {
        return false;
    }
    if (!isOfGroup || !hasList || BitsWithin(rights) != 0777)
    {
        GiveRightsWithin(bundleFd, rights, present);
    }
    // The folder last, in this order: a change of the owner clears bits, and an access list includes the mode.
    if (!isOfGroup && ::fchown(bundleFd, SAME_OWNER, rights.group) != 0 && IsGroupOfUse(rights))
    {
        Fail();
    }
    if (!hasList && rights.accessList.empty() && ::fremovexattr(bundleFd, ACCESS_LIST) != 0)
    {
        Fail();
    }
    if (::fchmod(bundleFd, rights.mode) != 0)
    {
        Fail();
    }
    if (!hasList && !rights.accessList.empty() &&
        ::fsetxattr(bundleFd, ACCESS_LIST, rights.accessList.data(), rights.accessList.size(), 0) != 0)
    {
        Fail();
    }
    return true;
}

} // namespace Pelnar::Installer
