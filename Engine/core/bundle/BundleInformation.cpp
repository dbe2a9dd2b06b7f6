#include "Engine/core/bundle/BundleInformation.h"

#include "Engine/core/bundle/PropertyList.h"
#include "Engine/core/faults/UpdateFault.h"

#include <algorithm>
#include <optional>

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view BUNDLE_SUFFIX = ".app";
constexpr std::string_view PURPOSE_KEY = "PelnarPayloadKind";

std::string ExecutableName(PropertyListValue const& list, std::string const& bundleName)
{
    for (char const* const key : {"NSExecutable", "CFBundleExecutable"})
    {
        if (std::optional<std::string> name = list.TextOf(key))
        {
            return *name;
        }
    }
    bool const hasSuffix = bundleName.size() > BUNDLE_SUFFIX.size() &&
                           std::equal(BUNDLE_SUFFIX.rbegin(), BUNDLE_SUFFIX.rend(), bundleName.rbegin());
    return hasSuffix ? bundleName.substr(0, bundleName.size() - BUNDLE_SUFFIX.size()) : bundleName;
}

BundlePurpose PurposeOf(PropertyListValue const& list)
{
    bool const isSaid = std::any_of(list.properties.begin(), list.properties.end(),
                                    [](auto const& property) { return property.first == PURPOSE_KEY; });
    std::string const text = list.TextOf(PURPOSE_KEY).value_or("");
    if (!isSaid || text == "application")
    {
        return BundlePurpose::Application;
    }
    return text == "installer" ? BundlePurpose::InstallerProgram : BundlePurpose::Unknown;
}

/// A truth value as a person writes it. XML's own values are already "YES" and "NO" here.
bool IsTrue(std::optional<std::string> const& text)
{
    return text && (*text == "YES" || *text == "yes" || *text == "true" || *text == "1");
}

bool RequiresSignedFeed(PropertyListValue const& list)
{
    auto const entry = std::find_if(list.properties.begin(), list.properties.end(),
                                    [](auto const& property) { return property.first == "PelnarRequiresSignedFeed"; });
    if (entry == list.properties.end())
    {
        return false;
    }
    std::string text = entry->second.text;
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char letter) { return letter >= 'A' && letter <= 'Z' ? char(letter - 'A' + 'a') : letter; });
    bool const isText = entry->second.kind == PropertyListValue::Kind::Text;
    return !isText || (text != "no" && text != "false" && text != "0");
}

} // namespace

BundleInformation ParseBundleInformation(std::string_view text, std::string const& bundleName)
{
    if (text.size() > PROPERTY_LIST_MAX_BYTES)
    {
        throw UpdateRefusal(UpdateFault::InformationTooLarge);
    }
    auto const list = ParsePropertyList(text);
    if (!list || list->kind != PropertyListValue::Kind::Dictionary)
    {
        throw UpdateRefusal(UpdateFault::InformationMalformed);
    }
    BundleInformation information;
    information.identifier = list->TextOf("CFBundleIdentifier").value_or("");
    information.version = list->TextOf("CFBundleVersion").value_or("");
    information.displayVersion = list->TextOf("CFBundleShortVersionString").value_or("");
    information.minimumSystemVersion = list->TextOf("LSMinimumSystemVersion").value_or("");
    if (std::optional<std::string> const first = list->TextOf("SUPublicEDKey"); first && !first->empty())
    {
        information.publicKeys = {*first, list->TextOf("PelnarNextPublicEDKey").value_or("")};
    }
    information.rootPublicKey = list->TextOf("PelnarRootPublicEDKey").value_or("");
    information.feedUrl = list->TextOf("SUFeedURL").value_or("");
    information.maximumFeedBytes = list->TextOf("PelnarMaximumFeedBytes").value_or("");
    information.feedPlatform = list->TextOf("PelnarFeedPlatform").value_or("");
    information.purpose = PurposeOf(*list);
    information.allowsInstallerPrograms = IsTrue(list->TextOf("PelnarAllowsInstallerPrograms"));
    information.allowsInsecureFeeds = IsTrue(list->TextOf("PelnarAllowsInsecureFeeds"));
    information.requiresSignedFeed = RequiresSignedFeed(*list);
    information.disablesUpdates = IsTrue(list->TextOf("PelnarUpdatesDisabled"));
    information.confirmsGoodStart = IsTrue(list->TextOf("PelnarConfirmsGoodStart"));
    information.executable = ExecutableName(*list, bundleName);
    std::string const& executable = information.executable;
    if (executable.empty() || executable == "." || executable == ".." || executable.find('/') != std::string::npos)
    {
        throw UpdateRefusal(UpdateFault::ExecutableNameInvalid, 0, executable);
    }
    return information;
}

} // namespace Pelnar::Engine
