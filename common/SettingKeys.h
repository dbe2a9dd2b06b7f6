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
    {Setting::FeedUrl, "SUFeedURL", SettingType::Text, SettingPlace::Both, "the address from the host's links",
     "The feed's address. As a user default it has an effect only with `PelnarAllowsFeedURLInDefaults`."},
    {Setting::AllowsFeedUrlInDefaults, "PelnarAllowsFeedURLInDefaults", SettingType::Boolean, SettingPlace::Information,
     "NO", "A user default may name another feed."},
    {Setting::PublicKey, "SUPublicEDKey", SettingType::Text, SettingPlace::Information, "no update is installed",
     "The public key, in base64, that verifies updates and feeds."},
    {Setting::NextPublicKey, "PelnarNextPublicEDKey", SettingType::Text, SettingPlace::Information,
     "only `SUPublicEDKey` is trusted", "A second trusted public key, for a change of keys."},
    {Setting::RootPublicKey, "PelnarRootPublicEDKey", SettingType::Text, SettingPlace::Information,
     "the two keys above are trusted",
     "The root key, in base64. Its statement in the feed names the valid keys, which replace the two keys above."},
    {Setting::RequiresSignedFeed, "PelnarRequiresSignedFeed", SettingType::Boolean, SettingPlace::Information, "NO",
     "An unsigned feed is refused. Any value except NO counts as YES."},
    {Setting::AllowsInsecureFeeds, "PelnarAllowsInsecureFeeds", SettingType::Boolean, SettingPlace::Information, "NO",
     "Plain http to any server is allowed. Without this, only the loopback address is allowed."},
    {Setting::MaximumFeedBytes, "PelnarMaximumFeedBytes", SettingType::Number, SettingPlace::Information, "4194304",
     "The maximum size of the feed, from 1 to 1073741824 bytes."},
    {Setting::FeedPlatform, "PelnarFeedPlatform", SettingType::Text, SettingPlace::Both, "`linux`",
     "The platform whose items are offered: `macos` or `linux`."},
    {Setting::Channels, "PelnarChannels", SettingType::Text, SettingPlace::Both, "no channel",
     "The channels whose items are offered too, separated by commas. `Pelnar::SetChannels()` writes this."},
    {Setting::UpdatesDisabled, "PelnarUpdatesDisabled", SettingType::Boolean, SettingPlace::Both, "NO",
     "Updates are disabled: every check fails at once, and nothing is sent. A YES in either place is enough."},
    {Setting::AutomaticallyUpdate, "SUAutomaticallyUpdate", SettingType::Boolean, SettingPlace::Both, "NO",
     "Updates are downloaded before the person is asked."},
    {Setting::ConfirmsGoodStart, "PelnarConfirmsGoodStart", SettingType::Boolean, SettingPlace::Information, "NO",
     "The application calls `Pelnar::ConfirmGoodStart()` at every start. A version that does not is rolled back."},
    {Setting::BundleName, "SUBundleName", SettingType::Text, SettingPlace::Information, "the host's name",
     "The application's name in the dialog \"ready to install\"."},
    {Setting::AllowsInstallerPrograms, "PelnarAllowsInstallerPrograms", SettingType::Boolean, SettingPlace::Information,
     "NO", "An update may be an installer program."},
    {Setting::PayloadKind, "PelnarPayloadKind", SettingType::Text, SettingPlace::Information, "`application`",
     "The kind of an update's bundle: `application` or `installer`."},
    {Setting::BundleIdentifier, "CFBundleIdentifier", SettingType::Text, SettingPlace::Information,
     "no update is installed", "The bundle's identifier. An update must have the same one."},
    {Setting::BundleVersion, "CFBundleVersion", SettingType::Text, SettingPlace::Information, "no update is installed",
     "The bundle's version."},
    {Setting::BundleShortVersion, "CFBundleShortVersionString", SettingType::Text, SettingPlace::Information,
     "`CFBundleVersion`", "The version that people see."},
    {Setting::BundleDisplayName, "CFBundleDisplayName", SettingType::Text, SettingPlace::Information, "`CFBundleName`",
     "The name that people see."},
    {Setting::BundlePlainName, "CFBundleName", SettingType::Text, SettingPlace::Information,
     "the name of the bundle's folder", "The name, if `CFBundleDisplayName` is absent."},
    {Setting::BundleExecutable, "CFBundleExecutable", SettingType::Text, SettingPlace::Information,
     "the name of the bundle's folder", "The program in the bundle, if `NSExecutable` is absent."},
    {Setting::GnustepExecutable, "NSExecutable", SettingType::Text, SettingPlace::Information, "`CFBundleExecutable`",
     "The program in the bundle."},
    {Setting::MinimumSystemVersion, "LSMinimumSystemVersion", SettingType::Text, SettingPlace::Information,
     "any system", "The oldest system that the bundle runs on. `pelnar-appcast generate` puts it into the feed."},
    {Setting::SkippedVersion, "SUSkippedVersion", SettingType::Text, SettingPlace::Defaults, "no version",
     "The version that the person skipped. Background checks do not offer it or an older one."},
    {Setting::LastCheckTime, "SULastCheckTime", SettingType::Date, SettingPlace::Defaults, "no check yet",
     "The time when the last check ended."},
    {Setting::FailedChecks, "PelnarFailedChecks", SettingType::Number, SettingPlace::Defaults, "0",
     "The number of background checks that failed in a row."},
    {Setting::LastFailedCheckTime, "PelnarLastFailedCheckTime", SettingType::Date, SettingPlace::Defaults, "no failure",
     "The time of the last of these failures."},
    {Setting::FeedRecord, "PelnarFeedRecord", SettingType::Dictionary, SettingPlace::Defaults, "nothing",
     "The feed's record of early versions. It is read until the record has its own file."},
    {Setting::EarlierDefaultsTaken, "PelnarEarlierDefaultsTaken", SettingType::Boolean, SettingPlace::Defaults, "NO",
     "The settings of earlier versions have been copied."},
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
static_assert(IsTableInOrder(), "each entry is at the index of its enumerator");

} // namespace Pelnar::Core
