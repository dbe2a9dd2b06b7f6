// SettingKeys.h: one table of every key of the information dictionary and of the user defaults that the update checker
// reads. docs/guide/settings.md is generated from it. Plain C++, constants only.
#pragma once

#include <cstddef>
#include <string_view>

namespace Pelnar::Core
{

enum class Setting
{
    FeedUrl,
    AllowsFeedUrlInDefaults,
    PublicKey,
    NextPublicKey,
    RootPublicKey,
    RequiresSignedFeed,
    AllowsInsecureFeeds,
    MaximumFeedBytes,
    FeedPlatform,
    Channels,
    UpdatesDisabled,
    AutomaticallyUpdate,
    ConfirmsGoodStart,
    BundleName,
    AllowsInstallerPrograms,
    PayloadKind,
    BundleIdentifier,
    BundleVersion,
    BundleShortVersion,
    BundleDisplayName,
    BundlePlainName,
    BundleExecutable,
    GnustepExecutable,
    MinimumSystemVersion,
    SkippedVersion,
    LastCheckTime,
    FailedChecks,
    LastFailedCheckTime,
    FeedRecord,
    EarlierDefaultsTaken,
};

enum class SettingType
{
    Text,
    Boolean, ///< YES or NO
    Number,
    Date,
    Dictionary,
};

enum class SettingPlace
{
    Information, ///< the bundle's information file
    Defaults,    ///< the user defaults
    Both,        ///< both; the user default has priority
};

struct SettingKey
{
    Setting setting;
    std::string_view name;
    SettingType type;
    SettingPlace place;
    std::string_view whenAbsent; ///< what holds if the key is absent
    std::string_view meaning;
};

inline constexpr SettingKey SETTING_KEYS[] = {
    {Setting::FeedUrl, "SUFeedURL", SettingType::Text, SettingPlace::Both, "the host's links name the feed",
     "The feed's address. As a user default it counts only with `PelnarAllowsFeedURLInDefaults`."},
    {Setting::AllowsFeedUrlInDefaults, "PelnarAllowsFeedURLInDefaults", SettingType::Boolean, SettingPlace::Information,
     "NO", "A user default may name another feed."},
    {Setting::PublicKey, "SUPublicEDKey", SettingType::Text, SettingPlace::Information, "no update is installed",
     "The public key, in base64, that updates and feeds are signed with."},
    {Setting::NextPublicKey, "PelnarNextPublicEDKey", SettingType::Text, SettingPlace::Information, "one key counts",
     "A second public key that is trusted as well, for a change of keys."},
    {Setting::RootPublicKey, "PelnarRootPublicEDKey", SettingType::Text, SettingPlace::Information,
     "the bundle's own keys count",
     "The public key, in base64, that says in the feed which keys are valid. They count in the place of the two "
     "above."},
    {Setting::RequiresSignedFeed, "PelnarRequiresSignedFeed", SettingType::Boolean, SettingPlace::Information, "NO",
     "A feed that is not signed is refused. Any value but a plain NO counts as YES."},
    {Setting::AllowsInsecureFeeds, "PelnarAllowsInsecureFeeds", SettingType::Boolean, SettingPlace::Information, "NO",
     "Plain http to any server. Without it plain http works on the loopback address only."},
    {Setting::MaximumFeedBytes, "PelnarMaximumFeedBytes", SettingType::Number, SettingPlace::Information, "4194304",
     "The size of the largest feed that is read, from 1 to 1073741824 bytes."},
    {Setting::FeedPlatform, "PelnarFeedPlatform", SettingType::Text, SettingPlace::Both, "`linux`",
     "Whose items of the feed count: `macos` or `linux`."},
    {Setting::Channels, "PelnarChannels", SettingType::Text, SettingPlace::Both, "no channel",
     "The channels of the feed whose items count as well, with commas between them. `Pelnar::SetChannels()` writes "
     "it."},
    {Setting::UpdatesDisabled, "PelnarUpdatesDisabled", SettingType::Boolean, SettingPlace::Both, "NO",
     "Nothing is sent, and every check fails at once. A YES in one of the two places is enough."},
    {Setting::AutomaticallyUpdate, "SUAutomaticallyUpdate", SettingType::Boolean, SettingPlace::Both, "NO",
     "Updates are downloaded before a person is asked."},
    {Setting::ConfirmsGoodStart, "PelnarConfirmsGoodStart", SettingType::Boolean, SettingPlace::Information, "NO",
     "The application calls `Pelnar::ConfirmGoodStart()` at every start. A version that fails to do so is taken back."},
    {Setting::BundleName, "SUBundleName", SettingType::Text, SettingPlace::Information, "the host's name",
     "The application's name in the dialog \"ready to install\"."},
    {Setting::AllowsInstallerPrograms, "PelnarAllowsInstallerPrograms", SettingType::Boolean, SettingPlace::Information,
     "NO", "An update may be a program that installs."},
    {Setting::PayloadKind, "PelnarPayloadKind", SettingType::Text, SettingPlace::Information, "`application`",
     "What the bundle of an update is: `application` or `installer`."},
    {Setting::BundleIdentifier, "CFBundleIdentifier", SettingType::Text, SettingPlace::Information,
     "no update is installed", "The bundle's identifier. An update must have the same one."},
    {Setting::BundleVersion, "CFBundleVersion", SettingType::Text, SettingPlace::Information, "no update is installed",
     "The version that runs."},
    {Setting::BundleShortVersion, "CFBundleShortVersionString", SettingType::Text, SettingPlace::Information,
     "`CFBundleVersion`", "The version as a person sees it."},
    {Setting::BundleDisplayName, "CFBundleDisplayName", SettingType::Text, SettingPlace::Information, "`CFBundleName`",
     "The name as a person sees it."},
    {Setting::BundlePlainName, "CFBundleName", SettingType::Text, SettingPlace::Information,
     "the name of the bundle's folder", "The name, where there is no `CFBundleDisplayName`."},
    {Setting::BundleExecutable, "CFBundleExecutable", SettingType::Text, SettingPlace::Information,
     "the name of the bundle's folder", "The program in the bundle, where there is no `NSExecutable`."},
    {Setting::GnustepExecutable, "NSExecutable", SettingType::Text, SettingPlace::Information, "`CFBundleExecutable`",
     "The program in the bundle."},
    {Setting::MinimumSystemVersion, "LSMinimumSystemVersion", SettingType::Text, SettingPlace::Information,
     "any system", "The oldest system that the bundle runs on. `pelnar-appcast generate` puts it into the feed."},
    {Setting::SkippedVersion, "SUSkippedVersion", SettingType::Text, SettingPlace::Defaults, "no version",
     "The version that the person skipped. Checks in the background do not offer it, nor an older one."},
    {Setting::LastCheckTime, "SULastCheckTime", SettingType::Date, SettingPlace::Defaults, "no check yet",
     "When the last check ended."},
    {Setting::FailedChecks, "PelnarFailedChecks", SettingType::Number, SettingPlace::Defaults, "0",
     "How many checks in the background have failed in a row."},
    {Setting::LastFailedCheckTime, "PelnarLastFailedCheckTime", SettingType::Date, SettingPlace::Defaults, "no failure",
     "When the last of them failed."},
    {Setting::FeedRecord, "PelnarFeedRecord", SettingType::Dictionary, SettingPlace::Defaults, "nothing",
     "What early versions knew of the feed. It is read in the old place until there is a file of its own."},
    {Setting::EarlierDefaultsTaken, "PelnarEarlierDefaultsTaken", SettingType::Boolean, SettingPlace::Defaults, "NO",
     "What stood in the old place has been taken over."},
};

constexpr SettingKey const& KeyOf(Setting setting)
{
    return SETTING_KEYS[static_cast<std::size_t>(setting)];
}

constexpr bool IsTableInOrder()
{
    std::size_t place = 0;
    for (SettingKey const& key : SETTING_KEYS)
    {
        if (static_cast<std::size_t>(key.setting) != place++)
        {
            return false;
        }
    }
    return place == static_cast<std::size_t>(Setting::EarlierDefaultsTaken) + 1;
}
static_assert(IsTableInOrder(), "an entry of the table stands at the place of its value");

} // namespace Pelnar::Core
