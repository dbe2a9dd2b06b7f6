#include "Engine/objc/BundleSettings_p.h"

#include "Engine/core/base/LatestWriter.h"
#include "Engine/core/base/PathText.h"
#include "Engine/core/check/FeedRecordFile.h"
#include "Engine/core/check/RolloutSeed.h"
#include "Engine/core/helper/StagingFolder.h"
#include "Engine/objc/ApplicationPlaces_p.h"
#include "Engine/objc/HelperLocation_p.h"
#include "Engine/objc/SettingValues_p.h"
#include "Foundation/FoundationText.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

#include <glog/logging.h>

#include <algorithm>

#include <fcntl.h>

using namespace Pelnar::Foundation;
using Pelnar::Core::KeyOf;
using Pelnar::Core::Setting;
using Pelnar::Core::SettingPlace;

namespace Pelnar::Engine
{
namespace
{

/// A check that begins while a record is being written must see it.
LatestWriter<FeedRecord>& RecordWriter()
{
    static LatestWriter<FeedRecord> writer;
    return writer;
}

FeedSigning ReadFeedSigning()
{
    id const object = SettingObject(Setting::RequiresSignedFeed);
    if (!object)
    {
        return FeedSigning::NotAsked;
    }
    bool const isText = [object isKindOfClass:[NSString class]];
    bool const isNo = isText ? QStringList{QStringLiteral("no"), QStringLiteral("false"), QStringLiteral("0")}.contains(
                                   ToQString(object).toLower())
                             : [object isKindOfClass:[NSNumber class]] && ![object boolValue];
    bool const isYes = isText ? [object boolValue] : [object isKindOfClass:[NSNumber class]] && [object boolValue];
    // Deliberate: a misspelt value selects the safe side.
    LOG_IF(WARNING, !isNo && !isYes) << "The setting " << KeyOf(Setting::RequiresSignedFeed).name
                                     << " is not a boolean and counts as YES";
    return isNo ? FeedSigning::NotAsked : FeedSigning::Required;
}

FeedPlatform ReadPlatform()
{
    QString const name = SettingText(Setting::FeedPlatform);
    if (name == QLatin1String("macos"))
    {
        return FeedPlatform::MacOS;
    }
    if (!name.isEmpty() && name != QLatin1String("linux"))
    {
        WarnOfType(Setting::FeedPlatform, "\"macos\" or \"linux\"");
    }
    return FeedPlatform::Linux;
}

QString ReadSkippedVersion()
{
    QString const version = SettingText(Setting::SkippedVersion);
    // A comparator may treat a text that is not a version as equal to every version; it would hide all updates forever.
    bool const hasDigit =
        std::any_of(version.begin(), version.end(), [](QChar character) { return character.isDigit(); });
    if (!version.isEmpty() && !hasDigit)
    {
        WarnOfType(Setting::SkippedVersion, "a version");
        return {};
    }
    return version;
}

qint64 ReadMaxFeedBytes()
{
    id const object = SettingObject(Setting::MaximumFeedBytes);
    if (!object)
    {
        return FetchLimits().maxBodyBytes;
    }
    bool const isNumber = [object isKindOfClass:[NSNumber class]] || [object isKindOfClass:[NSString class]];
    long long const bytes = isNumber ? [object longLongValue] : 0;
    if (bytes < 1 || bytes > MAX_FEED_BYTES)
    {
        WarnOfType(Setting::MaximumFeedBytes, "a number from 1 to 1073741824");
        return FetchLimits().maxBodyBytes;
    }
    return bytes;
}

CheckSettings ReadCheckSettings(QUrl const& feedUrl)
{
    CheckSettings settings;
    settings.feedUrl = feedUrl;
    settings.bundleVersion = SettingText(Setting::BundleVersion);
    settings.skippedVersion = ReadSkippedVersion();
    settings.languages = QLocale().uiLanguages();
    settings.platform = ReadPlatform();
    settings.machine = OwnMachineName();
    settings.channels = ReadChannels();
    settings.insecureHttp =
        IsSettingTrue(Setting::AllowsInsecureFeeds) ? InsecureHttp::Anywhere : InsecureHttp::LoopbackOnly;
    settings.fetchLimits.maxBodyBytes = ReadMaxFeedBytes();
    settings.feedSigning = ReadFeedSigning();
    settings.feedRecord = ReadFeedRecord();
    return settings;
}

RunningBundle ReadRunningBundle()
{
    RunningBundle bundle;
    bundle.path = BundlePathText(ToQString([[NSBundle mainBundle] bundlePath]));
    bundle.identifier = SettingText(Setting::BundleIdentifier);
    bundle.version = SettingText(Setting::BundleVersion);
    QString const shownVersion = SettingText(Setting::BundleShortVersion);
    bundle.shownVersion = shownVersion.isEmpty() ? bundle.version : shownVersion;
    for (Setting const name : {Setting::BundleDisplayName, Setting::BundlePlainName})
    {
        if (bundle.shownName.isEmpty())
        {
            bundle.shownName = SettingText(name);
        }
    }
    if (bundle.shownName.isEmpty())
    {
        bundle.shownName = QFileInfo(bundle.path).completeBaseName();
    }
    bundle.publicKeys = {SettingText(Setting::PublicKey).toStdString(),
                         SettingText(Setting::NextPublicKey).toStdString()};
    return bundle;
}

/// Nil if the record has no such entry of that class.
id EntryOf(NSDictionary* record, NSString* name, Class kind)
{
    id const entry = [record objectForKey:name];
    if (entry && ![entry isKindOfClass:kind])
    {
        LOG(WARNING) << "The entry " << ToUtf8(name) << " of " << KeyOf(Setting::FeedRecord).name
                     << " is of the wrong type and is ignored";
        return nil;
    }
    return entry;
}

/// The record of earlier versions in the user defaults; it counts until there is a file.
FeedRecord ReadFeedRecordOfDefaults()
{
    FeedRecord record;
    id const entries = [[NSUserDefaults standardUserDefaults] objectForKey:NameOfSetting(Setting::FeedRecord)];
    if (entries && ![entries isKindOfClass:[NSDictionary class]])
    {
        WarnOfType(Setting::FeedRecord, "a dictionary");
        return record;
    }
    record.address = ToQString(EntryOf(entries, @"address", [NSString class]));
    record.digest = ToQString(EntryOf(entries, @"digest", [NSString class]));
    if (NSDate* const time = EntryOf(entries, @"firstSeen", [NSDate class]))
    {
        record.firstSeen = TimeOf(time);
    }
    if (NSDate* const time = EntryOf(entries, @"lastSeen", [NSDate class]))
    {
        record.lastSeen = TimeOf(time);
    }
    record.serial = std::max(0LL, [EntryOf(entries, @"serial", [NSNumber class]) longLongValue]);
    return record;
}

QString RecordPath() { return FeedRecordFileOf(SettingText(Setting::BundleIdentifier)); }

/// The record of earlier versions, in a folder next to the user defaults or in the user defaults.
FeedRecord ReadEarlierFeedRecord()
{
    QString const folder = ToQString(GSDefaultsRootForUser(NSUserName()));
    return ReadFeedRecordFile(FeedRecordPath(folder, SettingText(Setting::BundleIdentifier)))
        .value_or(ReadFeedRecordOfDefaults());
}

BackOffState ReadBackOff()
{
    BackOffState state;
    id const failures = SettingObject(Setting::FailedChecks);
    id const time = SettingObject(Setting::LastFailedCheckTime);
    if (!failures && !time)
    {
        return state;
    }
    if (![failures isKindOfClass:[NSNumber class]] || ![time isKindOfClass:[NSDate class]])
    {
        WarnOfType(Setting::FailedChecks, "a number with a date");
        return state;
    }
    state.failures = [failures intValue];
    state.lastFailure = TimeOf(time);
    return state;
}

/// A root key that is there protects: an empty one, and one that is no text, counts as damaged.
std::string ReadRootKey()
{
    std::string const text = SettingText(Setting::RootPublicKey).toStdString();
    return text.empty() && SettingObject(Setting::RootPublicKey) ? "damaged" : text;
}

} // namespace

UpdateSettings ReadUpdateSettings(QUrl const& feedUrl)
{
    UpdateSettings settings;
    settings.check = ReadCheckSettings(feedUrl);
    settings.bundle = ReadRunningBundle();
    settings.check.publicKeys = settings.bundle.publicKeys;
    settings.check.rootPublicKey = ReadRootKey();
    settings.check.bundleIdentifier = settings.bundle.identifier.toStdString();
    settings.automaticDownload = ReadAutomaticDownload();
    // Either place can disable updates: a user default must not undo an administrator's decision.
    bool const isDisabled = IsSettingTrueIn(SettingPlace::Information, Setting::UpdatesDisabled) ||
                            IsSettingTrueIn(SettingPlace::Defaults, Setting::UpdatesDisabled);
    settings.updates = isDisabled ? UpdateSwitch::Off : UpdateSwitch::On;
    settings.backOff = ReadBackOff();
    settings.downloadFolder = DownloadFolderOf(settings.bundle.identifier);
    settings.stateFolder = StateFolderOf(settings.bundle.identifier);
    settings.check.rolloutGroup = [folder = settings.stateFolder](QString const& version)
    { return RolloutGroup(RolloutSeed(folder), version); };
    return settings;
}

QString BundlePathText(QString const& path)
{
    if (!path.startsWith(QLatin1String("/proc/self/fd/")))
    {
        return path;
    }
    UniqueFd const folder(::open(path.toUtf8().constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    return folder ? PathText(RealPathOf(folder.Get())) : path;
}

std::optional<StartedApplication> ReadStartedApplication()
{
    StartedApplication application;
    application.helperProgram = HelperProgram();
    application.bundlePath = BundlePathText(ToQString([[NSBundle mainBundle] bundlePath]));
    application.version = SettingText(Setting::BundleVersion);
    QString const identifier = SettingText(Setting::BundleIdentifier);
    application.downloadFolder = DownloadFolderOf(identifier);
    application.stateFolder = StateFolderOf(identifier);
    return application.version.isEmpty() ? std::nullopt : std::optional(application);
}

QUrl ReadFeedUrl()
{
    bool const mayBeChanged = IsSettingTrue(Setting::AllowsFeedUrlInDefaults);
    return QUrl(SettingTextIn(mayBeChanged ? SettingPlace::Both : SettingPlace::Information, Setting::FeedUrl));
}

AutomaticDownload ReadAutomaticDownload()
{
    return IsSettingTrue(Setting::AutomaticallyUpdate) ? AutomaticDownload::On : AutomaticDownload::Off;
}

QStringList ReadChannels()
{
    QString const text = SettingText(Setting::Channels);
    QStringList channels;
    for (QString const& name : text.split(QLatin1Char(','), Qt::SkipEmptyParts))
    {
        QString const channel = name.trimmed();
        if (IsChannelName(channel))
        {
            channels.append(channel);
        }
        else if (!channel.isEmpty())
        {
            WarnOfType(Setting::Channels, "a list of names separated by commas");
        }
    }
    return channels;
}

void WriteChannels(QStringList const& channels)
{
    SaveSettings({{Setting::Channels, channels.join(QLatin1Char(','))}});
}

void WriteAutomaticDownload(AutomaticDownload value)
{
    SaveSettings({{Setting::AutomaticallyUpdate, value == AutomaticDownload::On}});
}

void WriteSkippedVersion(QString const& version) { SaveSettings({{Setting::SkippedVersion, version}}); }

void WriteLastCheckTime(DiskChores& chores)
{
    SaveSettingsLater({{Setting::LastCheckTime, QDateTime::currentDateTimeUtc()}}, chores);
}

void WriteBackOff(BackOffState const& state, DiskChores& chores)
{
    QVariant const time = state.lastFailure.isValid() ? QVariant(state.lastFailure) : QVariant();
    QVariant const failures = state.failures > 0 ? QVariant(state.failures) : QVariant();
    SaveSettingsLater({{Setting::FailedChecks, failures}, {Setting::LastFailedCheckTime, time}}, chores);
}

FeedFolder ReadFeedFolder()
{
    QString const identifier = ReadRunningBundle().identifier;
    return {DownloadFolderOf(identifier), identifier};
}

FeedRecord ReadFeedRecord()
{
    // Before the file is read: without a waiting record, the file has it.
    std::optional<FeedRecord> const unwritten = RecordWriter().Waiting();
    FeedRecord const stored = ReadFeedRecordFile(RecordPath()).value_or(ReadEarlierFeedRecord());
    return unwritten ? FeedRecordToKeep(stored, *unwritten) : stored;
}

void KeepFeedRecord(FeedRecord const& ours, DiskChores& chores)
{
    std::optional<FeedRecord> const unwritten = RecordWriter().Waiting();
    RecordWriter().Put(unwritten ? FeedRecordToKeep(*unwritten, ours) : ours, chores,
                       [path = RecordPath(), earlier = ReadEarlierFeedRecord()](FeedRecord const& latest)
                       { return KeepFeedRecordFile(path, earlier, latest); });
}

} // namespace Pelnar::Engine
