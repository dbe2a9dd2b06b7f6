#include "Engine/core/helper/FolderSafety.h"

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/helper/StagingFolder.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <optional>
#include <vector>

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t DATABASE_BYTES = std::size_t{64} << 10; ///< for one entry of the user or group database

/// An entry of an access list, as the kernel gives it: little-endian.
struct AccessEntry
{
    std::uint16_t tag;
    std::uint16_t rights;
    std::uint32_t id;
};

constexpr std::uint16_t TAG_UNKNOWN = 0; ///< not the kernel's
constexpr std::uint16_t TAG_USER = 0x02;
constexpr std::uint16_t TAG_OWNING_GROUP = 0x04;
constexpr std::uint16_t TAG_GROUP = 0x08;
constexpr std::uint16_t TAG_MASK = 0x10;
constexpr std::uint16_t RIGHT_TO_WRITE = 2;
constexpr std::size_t LIST_HEAD_BYTES = 4;
constexpr std::size_t LIST_BYTES = std::size_t{64} << 10; ///< the kernel's limit for the value of an attribute

/// The entries that let somebody write. Empty without an access list. A list that cannot be read has an entry with
/// TAG_UNKNOWN.
std::optional<std::vector<AccessEntry>> WritersIn(int fd)
{
    std::vector<char> list(LIST_BYTES);
    ssize_t const size = ::getxattr(DescriptorPath(fd).c_str(), "system.posix_acl_access", list.data(), list.size());
    if (size < 0 && (errno == ENODATA || errno == EOPNOTSUPP))
    {
        return std::nullopt;
    }
    std::vector<AccessEntry> writers;
    if (size < 0)
    {
        writers.push_back({TAG_UNKNOWN, RIGHT_TO_WRITE, 0});
    }
    for (std::size_t at = LIST_HEAD_BYTES; static_cast<ssize_t>(at + sizeof(AccessEntry)) <= size;
         at += sizeof(AccessEntry))
    {
        AccessEntry entry;
        std::memcpy(&entry, list.data() + at, sizeof entry);
        if ((entry.rights & RIGHT_TO_WRITE) != 0 && entry.tag != TAG_MASK)
        {
            writers.push_back(entry);
        }
    }
    return writers;
}

/// True if another user in the local list has the group as their primary group.
bool IsGroupOfAnotherUser(gid_t group)
{
    std::unique_ptr<FILE, decltype(&::fclose)> const file(std::fopen("/etc/passwd", "re"), &::fclose);
    std::vector<char> buffer(DATABASE_BYTES);
    passwd entry{};
    passwd* found = nullptr;
    // Deliberate: getpwent would move the read position of a host that reads the list too.
    while (file && ::fgetpwent_r(file.get(), &entry, buffer.data(), buffer.size(), &found) == 0)
    {
        if (entry.pw_gid == group && entry.pw_uid != ::geteuid())
        {
            return true;
        }
    }
    return !file;
}

/// True if the group is this user's own: named after the user, the user's primary group, and without any other member.
bool IsPrivateGroup(gid_t group)
{
    std::vector<char> userBuffer(DATABASE_BYTES);
    std::vector<char> groupBuffer(DATABASE_BYTES);
    passwd user{};
    passwd* foundUser = nullptr;
    struct group entry
    {
    };
    struct group* foundGroup = nullptr;
    if (::getpwuid_r(::geteuid(), &user, userBuffer.data(), userBuffer.size(), &foundUser) != 0 || !foundUser ||
        ::getgrgid_r(group, &entry, groupBuffer.data(), groupBuffer.size(), &foundGroup) != 0 || !foundGroup)
    {
        return false;
    }
    std::string const name = user.pw_name;
    for (char const* const* member = entry.gr_mem; *member; ++member)
    {
        if (name != *member)
        {
            return false;
        }
    }
    return user.pw_gid == group && name == entry.gr_name && !IsGroupOfAnotherUser(group);
}

/// The number in the file's first line, after \a column words. The kernel's lines are short.
std::uint64_t NumberIn(char const* path, int column)
{
    std::ifstream file(path);
    std::uint64_t number = 0;
    for (int word = 0; word <= column; ++word)
    {
        file >> number;
    }
    return file ? number : 0;
}

/// True if \a owner is the substitute for all users that the namespace of this process does not map.
bool IsHidden(uid_t owner)
{
    constexpr std::uint64_t ALL_USERS = 0xffffffff;
    return owner == NumberIn("/proc/sys/kernel/overflowuid", 0) && NumberIn("/proc/self/uid_map", 2) < ALL_USERS;
}

/// Who may write besides the owner, if the mode's group bits say that somebody may: with an access list they are the
/// list's mask. Without a path.
FolderFinding JudgeGroup(int fd, gid_t group)
{
    std::vector<AccessEntry> const ofMode{{TAG_OWNING_GROUP, RIGHT_TO_WRITE, 0}};
    for (AccessEntry const& writer : WritersIn(fd).value_or(ofMode))
    {
        gid_t const id = writer.tag == TAG_GROUP ? writer.id : group;
        if (writer.tag == TAG_USER && writer.id != 0 && writer.id != ::geteuid())
        {
            return {FolderSafety::OpenToUser, {}, writer.id};
        }
        bool const isOfGroup = writer.tag == TAG_GROUP || writer.tag == TAG_OWNING_GROUP;
        if (writer.tag == TAG_UNKNOWN || (isOfGroup && !IsPrivateGroup(id)))
        {
            return {FolderSafety::OpenToGroup, {}, id};
        }
    }
    return {};
}

/// Without a path.
FolderFinding JudgeItself(int fd, struct stat const& status)
{
    if (status.st_uid != 0 && status.st_uid != ::geteuid())
    {
        return {IsHidden(status.st_uid) ? FolderSafety::OwnerHidden : FolderSafety::OfAnotherUser, {}, 0};
    }
    if ((status.st_mode & S_IWOTH) != 0)
    {
        return {(status.st_mode & S_ISVTX) != 0 ? FolderSafety::Shared : FolderSafety::OpenToAll, {}, 0};
    }
    return (status.st_mode & S_IWGRP) == 0 ? FolderFinding() : JudgeGroup(fd, status.st_gid);
}

/// True for a folder above in which no user can change the names of others.
bool IsSafeAbove(FolderSafety safety, struct stat const& status)
{
    bool const isOpen =
        safety == FolderSafety::Shared || safety == FolderSafety::OpenToGroup || safety == FolderSafety::OpenToUser;
    return safety == FolderSafety::Safe || (isOpen && (status.st_mode & S_ISVTX) != 0);
}

} // namespace

FolderFinding LookUpToTheRoot(int folderFd)
{
    UniqueFd folder(::openat(folderFd, ".", O_PATH | O_DIRECTORY | O_CLOEXEC));
    bool isAbove = false;
    for (struct stat below{}; folder; isAbove = true)
    {
        struct stat status;
        if (::fstat(folder.Get(), &status) != 0)
        {
            break;
        }
        if (isAbove && status.st_dev == below.st_dev && status.st_ino == below.st_ino)
        {
            return {}; // only the root is its own parent
        }
        FolderFinding finding = JudgeItself(folder.Get(), status);
        if (isAbove ? !IsSafeAbove(finding.safety, status) : finding.safety != FolderSafety::Safe)
        {
            finding.path = RealPathOf(folder.Get());
            return finding;
        }
        below = status;
        folder = UniqueFd(::openat(folder.Get(), "..", O_PATH | O_DIRECTORY | O_CLOEXEC));
    }
    return {FolderSafety::Unreadable, {}, 0};
}

bool IsSafeUpToTheRoot(int folderFd)
{
    return LookUpToTheRoot(folderFd).safety == FolderSafety::Safe;
}

bool IsSafeByItself(int fd)
{
    struct stat status;
    return ::fstat(fd, &status) == 0 && JudgeItself(fd, status).safety == FolderSafety::Safe;
}

std::string GroupName(gid_t group)
{
    std::vector<char> buffer(DATABASE_BYTES);
    struct group entry
    {
    };
    struct group* found = nullptr;
    bool const isKnown = ::getgrgid_r(group, &entry, buffer.data(), buffer.size(), &found) == 0 && found;
    return isKnown ? entry.gr_name : std::to_string(group);
}

std::string UserName(uid_t user)
{
    std::vector<char> buffer(DATABASE_BYTES);
    passwd entry{};
    passwd* found = nullptr;
    bool const isKnown = ::getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found) == 0 && found;
    return isKnown ? entry.pw_name : std::to_string(user);
}

} // namespace Pelnar::Engine
