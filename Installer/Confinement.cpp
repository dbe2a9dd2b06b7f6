#include "Installer/Confinement.h"

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/faults/UpdateFault.h"

#include <cerrno>
#include <cstdint>

#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

// The kernel's numbers; the oldest supported headers do not define all of them.
constexpr std::uint64_t EXECUTE = 1u << 0;
constexpr std::uint64_t WRITE_FILE = 1u << 1;
constexpr std::uint64_t READ_FILE = 1u << 2;
constexpr std::uint64_t READ_FOLDER = 1u << 3;
constexpr std::uint64_t MAKE_FOLDER = 1u << 7;
constexpr std::uint64_t MAKE_FILE = 1u << 8;
constexpr std::uint64_t MAKE_LINK = 1u << 12;
constexpr std::uint64_t ALL_OF_VERSION_1 = (1u << 13) - 1;
constexpr std::uint64_t REFER = 1u << 13;                    // since version 2
constexpr std::uint64_t TRUNCATE = 1u << 14;                 // since version 3
constexpr std::uint64_t DEVICE_CONTROL = 1u << 15;           // since version 5
constexpr std::uint64_t ALL_NETWORK = (1u << 0) | (1u << 1); // since version 4
constexpr std::uint64_t ALL_SCOPES = (1u << 0) | (1u << 1);  // since version 6

constexpr std::uint64_t READ_RIGHTS = READ_FILE | READ_FOLDER;
constexpr std::uint64_t WRITE_RIGHTS = READ_RIGHTS | WRITE_FILE | MAKE_FOLDER | MAKE_FILE | MAKE_LINK;
static_assert((ALL_OF_VERSION_1 & EXECUTE) != 0 && (WRITE_RIGHTS & EXECUTE) == 0);

struct Ruleset
{
    std::uint64_t files;
    std::uint64_t network;
    std::uint64_t scopes;
};

/// The rights that a kernel of \a version can restrict, and how many bytes of the structure it reads.
Ruleset RulesetOf(long version, std::size_t& bytes)
{
    Ruleset ruleset{ALL_OF_VERSION_1, 0, 0};
    bytes = sizeof ruleset.files;
    ruleset.files |= version >= 2 ? REFER : 0;
    ruleset.files |= version >= 3 ? TRUNCATE : 0;
    ruleset.files |= version >= 5 ? DEVICE_CONTROL : 0;
    if (version >= 4)
    {
        ruleset.network = ALL_NETWORK;
        bytes = sizeof ruleset.files + sizeof ruleset.network;
    }
    if (version >= 6)
    {
        ruleset.scopes = ALL_SCOPES;
        bytes = sizeof ruleset;
    }
    return ruleset;
}

[[noreturn]] void Fail()
{
    throw Engine::UpdateRefusal(Engine::UpdateFault::ConfinementFailed, errno);
}

void Allow(Engine::UniqueFd const& rules, int folderFd, std::uint64_t rights)
{
    landlock_path_beneath_attr rule{};
    rule.allowed_access = rights;
    rule.parent_fd = folderFd;
    if (::syscall(SYS_landlock_add_rule, rules.Get(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0) != 0)
    {
        Fail();
    }
}

} // namespace

void ConfineTo(int writableFolderFd, std::vector<int> const& readableFolderFds)
{
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
    {
        Fail();
    }
    long const version = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
    {
        return; // a kernel without Landlock: only the entry policy protects
    }
    std::size_t bytes = 0;
    Ruleset const ruleset = RulesetOf(version, bytes);
    Engine::UniqueFd const rules(static_cast<int>(::syscall(SYS_landlock_create_ruleset, &ruleset, bytes, 0)));
    if (!rules)
    {
        Fail();
    }
    Allow(rules, writableFolderFd, WRITE_RIGHTS);
    for (int const folderFd : readableFolderFds)
    {
        Allow(rules, folderFd, READ_RIGHTS);
    }
    if (::syscall(SYS_landlock_restrict_self, rules.Get(), 0) != 0)
    {
        Fail();
    }
}

} // namespace Pelnar::Installer
