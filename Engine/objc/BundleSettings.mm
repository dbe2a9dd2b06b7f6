#include "Engine/objc/BundleSettings_p.h"

#include "Engine/core/PathText.h"
#include "Engine/core/check/FeedRecordFile.h"
#include "Engine/core/payload/StagingFolder.h"
#include "Engine/objc/HelperLocation_p.h"
#include "Foundation/FoundationText.h"
#include "Foundation/RaisedException.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

#include <glog/logging.h>

#include <algorithm>
#include <mutex>
#include <utility>

#include <fcntl.h>

using namespace Pelnar::Foundation;

namespace Pelnar::Engine
{
namespace
{

constexpr long long MAX_FEED_BYTES = 1LL << 30;

/// A record on its way to the disk, which a check that begins meanwhile must not miss.
struct WaitingRecord
{
    std::mutex mutex;
    std::optional<FeedRecord> record;
    bool isNew = false; ///< not taken by who writes
    bool isBeingWritten = false;
};

WaitingRecord& Waiting()
{
    static WaitingRecord waiting;
    return waiting;
}

enum class Source
{
    Bundle,
    Defaults,
    DefaultsThenBundle,
};

id ObjectOf(NSString* key, Source source)
{
    id object = nil;
    if (source != Source::Bundle)
    {
        object = [[NSUserDefaults standardUserDefaults] objectForKey:key];
    }
    if (!object && source != Source::Defaults)
    {
        object = [[[NSBundle mainBundle] infoDictionary] objectForKey:key];
    }
    return object;
}

void WarnOfType(NSString* key, char const* wanted)
{
    LOG(WARNING) << "The setting " << ToUtf8(key) << " is not " << wanted << " and is ignored";
}

/// Empty when the key is absent or its value is not text.
QString TextOf(NSString* key, Source source)
{
    id const object = ObjectOf(key, source);
    if (!object)
    {
        return {};
    }
    if (![object isKindOfClass:[NSString class]])
    {
        WarnOfType(key, "text");
        return {};
    }
    return ToQString(object);
}

bool IsTrue(NSString* key, Source source)
{
    // A property list of the old style has no booleans, only text.
    id const object = ObjectOf(key, source);
    if (!object)
    {
        return false;
    }
    if (![object isKindOfClass:[NSNumber class]] && ![object isKindOfClass:[NSString class]])
    {
        WarnOfType(key, "a boolean");
        return false;
    }
    return [object boolValue];
}

FeedSigning ReadFeedSigning()
{
    NSString* const key = @"PelnarRequiresSignedFeed";
    id const object = ObjectOf(key, Source::Bundle);
    if (!object)
    {
        return FeedSigning::NotAsked;
    }
    bool const isText = [object isKindOfClass:[NSString class]];
    bool const isNo = isText ? QStringList{QStringLiteral("no"), QStringLiteral("false"), QStringLiteral("0")}.contains(
                                   ToQString(object).toLower())
                             : [object isKindOfClass:[NSNumber class]] && ![object boolValue];
    bool const isYes = isText ? [object boolValue] : [object isKindOfClass:[NSNumber class]] && [object boolValue];
    // Deliberate: a misspelt entry asks for the safe side.
    LOG_IF(WARNING, !isNo && !isYes) << "The setting " << ToUtf8(key) << " is not a boolean and counts as YES";
    return isNo ? FeedSigning::NotAsked : FeedSigning::Required;
}

FeedPlatform ReadPlatform()
{
    QString const name = TextOf(@"PelnarFeedPlatform", Source::DefaultsThenBundle);
    if (name == QLatin1String("macos"))
    {
        return FeedPlatform::MacOS;
    }
    if (!name.isEmpty() && name != QLatin1String("linux"))
    {
        WarnOfType(@"PelnarFeedPlatform", "\"macos\" or \"linux\"");
    }
    return FeedPlatform::Linux;
}

QString ReadSkippedVersion()
{
    QString const version = TextOf(@"SUSkippedVersion", Source::Defaults);
    // A comparator may call a text that is no version equal to every version; it would hide all updates for ever.
    bool const hasDigit =
        std::any_of(version.begin(), version.end(), [](QChar character) { return character.isDigit(); });
    if (!version.isEmpty() && !hasDigit)
    {
        WarnOfType(@"SUSkippedVersion", "a version");
        return {};
    }
    return version;
}

qint64 ReadMaxFeedBytes()
{
    NSString* const key = @"PelnarMaximumFeedBytes";
    id const object = ObjectOf(key, Source::Bundle);
    if (!object)
    {
        return FetchLimits().maxBodyBytes;
    }
    bool const isNumber = [object isKindOfClass:[NSNumber class]] || [object isKindOfClass:[NSString class]];
    long long const bytes = isNumber ? [object longLongValue] : 0;
    if (bytes < 1 || bytes > MAX_FEED_BYTES)
    {
        WarnOfType(key, "a number from 1 to 1073741824");
        return FetchLimits().maxBodyBytes;
    }
    return bytes;
}

CheckSettings ReadCheckSettings(QUrl const& feedUrl)
{
    CheckSettings settings;
    settings.feedUrl = feedUrl;
    settings.bundleVersion = TextOf(@"CFBundleVersion", Source::Bundle);
    settings.skippedVersion = ReadSkippedVersion();
    settings.languages = QLocale().uiLanguages();
    settings.platform = ReadPlatform();
    settings.insecureHttp =
        IsTrue(@"PelnarAllowsInsecureFeeds", Source::Bundle) ? InsecureHttp::Anywhere : InsecureHttp::LoopbackOnly;
    settings.fetchLimits.maxBodyBytes = ReadMaxFeedBytes();
    settings.feedSigning = ReadFeedSigning();
    settings.feedRecord = ReadFeedRecord();
    return settings;
}

RunningBundle ReadRunningBundle()
{
    RunningBundle bundle;
    bundle.path = BundlePathText(ToQString([[NSBundle mainBundle] bundlePath]));
    bundle.identifier = TextOf(@"CFBundleIdentifier", Source::Bundle);
    bundle.version = TextOf(@"CFBundleVersion", Source::Bundle);
    QString const shownVersion = TextOf(@"CFBundleShortVersionString", Source::Bundle);
    bundle.shownVersion = shownVersion.isEmpty() ? bundle.version : shownVersion;
    for (NSString* const key : {@"CFBundleDisplayName", @"CFBundleName"})
    {
        if (bundle.shownName.isEmpty())
        {
            bundle.shownName = TextOf(key, Source::Bundle);
        }
    }
    if (bundle.shownName.isEmpty())
    {
        bundle.shownName = QFileInfo(bundle.path).completeBaseName();
    }
    for (NSString* const key : {@"SUPublicEDKey", @"PelnarNextPublicEDKey"})
    {
        QString const text = TextOf(key, Source::Bundle);
        if (!text.isEmpty())
        {
            bundle.publicKeys.push_back(text);
        }
    }
    return bundle;
}

NSDate* DateOf(QDateTime const& time)
{
    return [NSDate dateWithTimeIntervalSince1970:static_cast<NSTimeInterval>(time.toSecsSinceEpoch())];
}

QDateTime TimeOf(NSDate* date)
{
    return QDateTime::fromSecsSinceEpoch(static_cast<qint64>([date timeIntervalSince1970]), Qt::UTC);
}

/// Nil when the record has no such entry of that class.
id EntryOf(NSDictionary* record, NSString* name, Class kind)
{
    id const entry = [record objectForKey:name];
    if (entry && ![entry isKindOfClass:kind])
    {
        LOG(WARNING) << "The entry " << ToUtf8(name) << " of PelnarFeedRecord is of the wrong type and is ignored";
        return nil;
    }
    return entry;
}

/// What versions before this one kept in the user defaults; it counts until there is a file.
FeedRecord ReadEarlierFeedRecord()
{
    FeedRecord record;
    NSString* const key = @"PelnarFeedRecord";
    id const entries = ObjectOf(key, Source::Defaults);
    if (entries && ![entries isKindOfClass:[NSDictionary class]])
    {
        WarnOfType(key, "a dictionary");
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

/// One after the other, until none is new: a slow disk makes no crowd of writers.
void WriteWaitingRecords(QString const& path, FeedRecord const& earlier)
{
    WaitingRecord& waiting = Waiting();
    std::unique_lock lock(waiting.mutex);
    bool isKept = false;
    while (std::exchange(waiting.isNew, false))
    {
        FeedRecord const record = *waiting.record;
        lock.unlock();
        isKept = KeepFeedRecordFile(path, earlier, record);
        lock.lock();
    }
    waiting.isBeingWritten = false;
    // What no disk keeps is remembered as long as the process lives.
    if (isKept)
    {
        waiting.record.reset();
    }
}

/// Beside the user defaults, but not in them: those are named after the program, and writing them takes the disk's time.
QString RecordPath()
{
    return FeedRecordPath(ToQString(GSDefaultsRootForUser(NSUserName())), TextOf(@"CFBundleIdentifier", Source::Bundle));
}

BackOffState ReadBackOff()
{
    BackOffState state;
    id const failures = ObjectOf(@"PelnarFailedChecks", Source::Defaults);
    id const time = ObjectOf(@"PelnarLastFailedCheckTime", Source::Defaults);
    if (!failures && !time)
    {
        return state;
    }
    if (![failures isKindOfClass:[NSNumber class]] || ![time isKindOfClass:[NSDate class]])
    {
        WarnOfType(@"PelnarFailedChecks", "a number with a date");
        return state;
    }
    state.failures = [failures intValue];
    state.lastFailure = TimeOf(time);
    return state;
}

/// One folder for each application. It is named so that no identifier can lead elsewhere.
QString DownloadFolderFor(QString const& identifier)
{
    QByteArray const name = QUrl::toPercentEncoding(identifier, {}, ".");
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + QStringLiteral("/pelnar-updates/") +
           QString::fromLatin1(name);
}

/// Takes over what other processes of the application have written since.
void RefreshDefaults()
{
    std::optional<std::string> const reason =
        ReasonRaisedBy([] { [[NSUserDefaults standardUserDefaults] synchronize]; });
    LOG_IF(WARNING, reason.has_value()) << "The user defaults could not be read anew: " << *reason;
}

/// Stores \a value and puts the defaults on disk; what fails is a warning, since a check must not depend on it.
void WriteDefault(NSString* key, id value)
{
    bool isWritten = false;
    std::optional<std::string> const reason = ReasonRaisedBy(
        [key, value, &isWritten]
        {
            NSUserDefaults* const defaults = [NSUserDefaults standardUserDefaults];
            [defaults setObject:value forKey:key];
            isWritten = [defaults synchronize];
        });
    LOG_IF(WARNING, !isWritten) << "The user default " << ToUtf8(key)
                                << " could not be saved: " << reason.value_or("the defaults cannot be written");
}

} // namespace

UpdateSettings ReadUpdateSettings(QUrl const& feedUrl)
{
    RefreshDefaults();
    UpdateSettings settings;
    settings.check = ReadCheckSettings(feedUrl);
    settings.bundle = ReadRunningBundle();
    settings.check.publicKeys = settings.bundle.publicKeys;
    settings.automaticDownload = ReadAutomaticDownload();
    // Whoever of the two says so: an administrator's word must not be undone by a default.
    bool const isDisabled =
        IsTrue(@"PelnarUpdatesDisabled", Source::Bundle) || IsTrue(@"PelnarUpdatesDisabled", Source::Defaults);
    settings.updates = isDisabled ? UpdateSwitch::Off : UpdateSwitch::On;
    settings.backOff = ReadBackOff();
    settings.downloadFolder = DownloadFolderFor(settings.bundle.identifier);
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
    application.version = TextOf(@"CFBundleVersion", Source::Bundle);
    application.downloadFolder = DownloadFolderFor(ReadRunningBundle().identifier);
    return application.version.isEmpty() ? std::nullopt : std::optional(application);
}

QUrl ReadFeedUrl()
{
    bool const mayBeChanged = IsTrue(@"PelnarAllowsFeedURLInDefaults", Source::Bundle);
    return QUrl(TextOf(@"SUFeedURL", mayBeChanged ? Source::DefaultsThenBundle : Source::Bundle));
}

AutomaticDownload ReadAutomaticDownload()
{
    return IsTrue(@"SUAutomaticallyUpdate", Source::DefaultsThenBundle) ? AutomaticDownload::On
                                                                        : AutomaticDownload::Off;
}

void WriteAutomaticDownload(AutomaticDownload value)
{
    WriteDefault(@"SUAutomaticallyUpdate", [NSNumber numberWithBool:value == AutomaticDownload::On]);
}

void WriteLastCheckTime() { WriteDefault(@"SULastCheckTime", [NSDate date]); }

void WriteSkippedVersion(QString const& version) { WriteDefault(@"SUSkippedVersion", ToNSString(version)); }

void WriteBackOff(BackOffState const& state)
{
    WriteDefault(@"PelnarFailedChecks", [NSNumber numberWithInt:state.failures]);
    NSDate* const time =
        state.lastFailure.isValid() ? DateOf(state.lastFailure) : [NSDate dateWithTimeIntervalSince1970:0];
    WriteDefault(@"PelnarLastFailedCheckTime", time);
}

FeedFolder ReadFeedFolder()
{
    QString const identifier = ReadRunningBundle().identifier;
    return {DownloadFolderFor(identifier), identifier};
}

FeedRecord ReadFeedRecord()
{
    WaitingRecord& waiting = Waiting();
    std::lock_guard const lock(waiting.mutex);
    FeedRecord const stored = ReadFeedRecordFile(RecordPath()).value_or(ReadEarlierFeedRecord());
    return waiting.record ? FeedRecordToKeep(stored, *waiting.record) : stored;
}

void KeepFeedRecord(FeedRecord const& ours, DiskChores& chores)
{
    WaitingRecord& waiting = Waiting();
    {
        std::lock_guard const lock(waiting.mutex);
        waiting.record = waiting.record ? FeedRecordToKeep(*waiting.record, ours) : ours;
        waiting.isNew = true;
        if (std::exchange(waiting.isBeingWritten, true))
        {
            return; // who writes takes this one next
        }
    }
    chores.Run([path = RecordPath(), earlier = ReadEarlierFeedRecord()] { WriteWaitingRecords(path, earlier); });
}

} // namespace Pelnar::Engine
