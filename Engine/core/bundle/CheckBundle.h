// CheckBundle.h: checks that an unpacked bundle is the expected one, by the same rules in the helper and in the
// publisher's tool.
#pragma once

#include "Engine/core/bundle/BundleInformation.h"
#include "Engine/core/bundle/PayloadKind.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

/// Reads Resources/Info-gnustep.plist of the bundle open at \a bundleFd. \a bundleName is its folder's name, which is
/// the default name of the executable. Throws UpdateRefusal: InformationMissing, InformationTooLarge,
/// InformationMalformed, ExecutableNameInvalid.
BundleInformation ReadBundleInformation(int bundleFd, std::string const& bundleName);

/// The machine for which a program's header declares it.
struct Machine
{
    unsigned char wordClass = 0; ///< 32 or 64 bits, in ELF's numbers
    unsigned char byteOrder = 0;
    std::uint16_t architecture = 0;
};

/// The machine that this program runs on.
Machine OwnMachine();
/// The machine for "x86_64", "aarch64" and similar names; empty for an unknown name.
std::optional<Machine> MachineOfName(std::string_view name);
/// In the order for a help text.
std::vector<std::string> MachineNames();
/// The name of \a machine; "another machine" if it has none.
std::string NameOf(Machine const& machine);

struct BundleExpectation
{
    PayloadKind kind;
    std::string identifier;
    std::string version;
    std::string installedVersion;
    Machine machine = OwnMachine();
};

/// Throws UpdateRefusal unless the bundle declares the expected kind, identifier and version, is newer than the
/// installed one, trusts a key, and has an executable for this machine. A bundle whose program installs the new version
/// is never updated itself and needs no key. \a bundleName: the name that its folder will have when it is started.
void CheckNewBundle(int bundleFd, std::string const& bundleName, BundleExpectation const& expectation);

/// Throws UpdateRefusal: ExecutableMissing, ExecutableNotRunnable, ExecutableForeign.
void CheckExecutable(int bundleFd, std::string const& executable, Machine const& machine = OwnMachine());

} // namespace Pelnar::Engine
