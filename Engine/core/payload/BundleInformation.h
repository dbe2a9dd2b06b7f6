// BundleInformation.h: what a bundle says of itself in its information file.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/payload/TrustedKeys.h"

#include <string>
#include <string_view>

namespace Pelnar::Engine
{

/// Where bundles of this system have the file, below the bundle's folder.
constexpr char INFORMATION_PATH[] = "Resources/Info-gnustep.plist";

/// What a bundle says that it is for, under PelnarPayloadKind.
enum class BundlePurpose
{
    Application,      ///< "application", or nothing said: it takes the installed bundle's place
    InstallerProgram, ///< "installer": its program installs the new version
    Unknown,          ///< anything else; no update may bring it
};

struct BundleInformation
{
    std::string identifier;
    std::string version;
    std::string displayVersion;       ///< empty when the bundle gives none
    std::string minimumSystemVersion; ///< empty when the bundle gives none
    TrustedKeys publicKeys;           ///< of SUPublicEDKey and PelnarNextPublicEDKey; none without the first
    std::string rootPublicKey;        ///< of PelnarRootPublicEDKey; empty when the bundle has none
    std::string executable;           ///< the file's name in the bundle's folder
    BundlePurpose purpose = BundlePurpose::Application;
    bool allowsInstallerPrograms = false;
    bool confirmsGoodStart = false; ///< it tells when it has started well, and is not kept otherwise
};

/// Reads \a text, the whole information file; \a bundleName is the name of the bundle's folder, after which an
/// executable without a name of its own is named. Throws UpdateRefusal: InformationTooLarge, InformationMalformed,
/// ExecutableNameInvalid.
BundleInformation ParseBundleInformation(std::string_view text, std::string const& bundleName);

} // namespace Pelnar::Engine
