// CheckBundle.h: whether an unpacked bundle is the one that an update must bring, by the same rules in the helper and
// in the publisher's tool. Thread: any. Ownership: descriptors stay the caller's.
#pragma once

#include "Engine/core/payload/BundleInformation.h"
#include "Engine/core/payload/UpdateJob.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

/// Reads Resources/Info-gnustep.plist of the bundle open at \a bundleFd; \a bundleName is its folder's name, after
/// which an executable without a name of its own is named. Throws UpdateRefusal: InformationMissing,
/// InformationTooLarge, InformationMalformed, ExecutableNameInvalid.
BundleInformation ReadBundleInformation(int bundleFd, std::string const& bundleName);

/// What a program's header says of the machine that it is for.
struct Machine
{
    unsigned char wordClass = 0; ///< 32 or 64 bits, as ELF counts
    unsigned char byteOrder = 0;
    std::uint16_t architecture = 0;
};

/// The machine that this program runs on.
Machine OwnMachine();
/// Of "x86_64", "aarch64" and the like; nothing for an unknown name.
std::optional<Machine> MachineOfName(std::string_view name);
/// In the order of a help text.
std::vector<std::string> MachineNames();
/// Of \a machine; "another machine" when it has none.
std::string NameOf(Machine const& machine);

struct BundleExpectation
{
    PayloadKind kind;
    std::string identifier;
    std::string version;
    std::string installedVersion;
    Machine machine = OwnMachine();
};

/// Throws UpdateRefusal unless the bundle says that it is of that kind, identifier and version, is newer than the
/// installed one, trusts some key, and begins with something that the machine can run. A bundle whose program installs
/// the new version is never updated itself and needs no key.
/// \a bundleName: the name that its folder will have when it is started.
void CheckNewBundle(int bundleFd, std::string const& bundleName, BundleExpectation const& expectation);

/// Throws UpdateRefusal: ExecutableMissing, ExecutableNotRunnable, ExecutableForeign.
void CheckExecutable(int bundleFd, std::string const& executable, Machine const& machine = OwnMachine());

} // namespace Pelnar::Engine
