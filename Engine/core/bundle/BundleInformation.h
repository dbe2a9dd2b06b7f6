// BundleInformation.h: the content of a bundle's information file. Pure functions.
#pragma once

#include "Engine/core/bundle/TrustedKeys.h"

#include <string>
#include <string_view>

namespace Pelnar::Engine
{

/// The path of the file in bundles of this system, below the bundle's folder.
constexpr char INFORMATION_PATH[] = "Resources/Info-gnustep.plist";

/// The bundle's purpose, from PelnarPayloadKind.
enum class BundlePurpose
{
    Application,      ///< "application", or no value: it replaces the installed bundle
    InstallerProgram, ///< "installer": its program installs the new version
    Unknown,          ///< any other value; no update may contain it
};

struct BundleInformation
{
    std::string identifier;
    std::string version;
    std::string displayVersion;       ///< empty if the bundle has none
    std::string minimumSystemVersion; ///< empty if the bundle has none
    TrustedKeys publicKeys;           ///< from SUPublicEDKey and PelnarNextPublicEDKey; none without the first
    std::string rootPublicKey;        ///< from PelnarRootPublicEDKey; empty if the bundle has none
    std::string feedUrl;              ///< from SUFeedURL; empty if the bundle has none
    std::string maximumFeedBytes;     ///< from PelnarMaximumFeedBytes; empty if the bundle has none
    std::string feedPlatform;         ///< from PelnarFeedPlatform; empty if the bundle has none
    std::string executable;           ///< the file's name in the bundle's folder
    BundlePurpose purpose = BundlePurpose::Application;
    bool allowsInstallerPrograms = false;
    bool allowsInsecureFeeds = false;
    bool requiresSignedFeed = false; ///< any value except NO counts as YES
    bool disablesUpdates = false;
    bool confirmsGoodStart = false; ///< it confirms a good start, and is rolled back otherwise
};

/// Reads \a text, the whole information file. \a bundleName is the name of the bundle's folder; it is the default name
/// of the executable. Throws UpdateRefusal: InformationTooLarge, InformationMalformed, ExecutableNameInvalid.
BundleInformation ParseBundleInformation(std::string_view text, std::string const& bundleName);

} // namespace Pelnar::Engine
