// BundleInformation.h: what a bundle says of itself, and whether it is the one that an update must bring.
// Thread: any. Ownership: descriptors stay the caller's.
#pragma once

#include "Engine/core/payload/BundleInformation.h"
#include "Engine/core/payload/UpdateJob.h"

#include <string>

namespace Pelnar::Installer
{

/// Reads Resources/Info-gnustep.plist of the bundle open at \a bundleFd; \a bundleName is its folder's name, after
/// which an executable without a name of its own is named. Throws UpdateRefusal: InformationMissing,
/// InformationTooLarge, InformationMalformed.
Engine::BundleInformation ReadBundleInformation(int bundleFd, std::string const& bundleName);

struct BundleExpectation
{
    Engine::PayloadKind kind;
    std::string identifier;
    std::string version;
    std::string installedVersion;
};

/// Throws UpdateRefusal unless the bundle says that it is of that kind, identifier and version, is newer than the
/// installed one, trusts some key, and begins with something that this machine can run. A bundle whose program installs
/// the new version is never updated itself and needs no key.
/// \a bundleName: the name that its folder will have when it is started.
void CheckNewBundle(int bundleFd, std::string const& bundleName, BundleExpectation const& expectation);

/// Throws UpdateRefusal: ExecutableMissing, ExecutableNotRunnable, ExecutableForeign.
void CheckExecutable(int bundleFd, std::string const& executable);

} // namespace Pelnar::Installer
