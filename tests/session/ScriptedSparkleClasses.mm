// The framework's classes. Each follows the script and records its calls.
#include "Foundation/FoundationText.h"
#include "tests/session/ScriptedSparkle.h"
#include "tests/session/ScriptedSparkleObjects.h"

using Pelnar::Foundation::ToNSString;
using Pelnar::Foundation::ToNSURL;
using Pelnar::Foundation::ToQString;
using Pelnar::Foundation::ToQUrl;
using Pelnar::Testing::ReadProperties;
using Pelnar::Testing::StandardComparator;
using Pelnar::Testing::TextOrNil;
using Pelnar::Testing::Updater;

namespace
{

id<SUUpdaterDelegate> currentDelegate = nil;

id PropertyValue(QVariant const& value)
{
    if (value.type() == QVariant::String)
    {
        return ToNSString(value.toString());
    }
    return [NSNumber numberWithLongLong:value.toLongLong()];
}

} // namespace

@implementation SUUpdater

+ (SUUpdater*)sharedUpdater
{
    static SUUpdater* const updater = [[SUUpdater alloc] init];
    return updater;
}

- (id<SUUpdaterDelegate>)delegate
{
    return currentDelegate;
}

- (void)setDelegate:(id<SUUpdaterDelegate>)delegate
{
    Updater().calls.emplace_back(delegate ? "setDelegate:" : "setDelegate:nil");
    Updater().hasDelegate = delegate != nil;
    currentDelegate = delegate;
}

- (NSURL*)feedURL
{
    return ToNSURL(Updater().feedUrl);
}

- (void)setFeedURL:(NSURL*)feedURL
{
    Updater().calls.emplace_back(feedURL ? "setFeedURL:" : "setFeedURL:nil");
    Updater().feedUrl = ToQUrl(feedURL);
    if (Updater().onSetFeedUrl)
    {
        Updater().onSetFeedUrl();
    }
}

- (BOOL)automaticallyChecksForUpdates
{
    return NO;
}

- (void)setAutomaticallyChecksForUpdates:(BOOL)automaticallyChecksForUpdates
{
    Updater().calls.emplace_back(automaticallyChecksForUpdates ? "setAutomaticallyChecksForUpdates:YES"
                                                               : "setAutomaticallyChecksForUpdates:NO");
    if (Updater().onSetAutomaticChecks)
    {
        Updater().onSetAutomaticChecks();
    }
}

- (BOOL)sendsSystemProfile
{
    return NO;
}

- (void)setSendsSystemProfile:(BOOL)sendsSystemProfile
{
    Updater().calls.emplace_back(sendsSystemProfile ? "setSendsSystemProfile:YES" : "setSendsSystemProfile:NO");
}

- (BOOL)automaticallyDownloadsUpdates
{
    return Updater().automaticallyDownloadsUpdates;
}

- (void)setAutomaticallyDownloadsUpdates:(BOOL)automaticallyDownloadsUpdates
{
    Updater().calls.emplace_back(automaticallyDownloadsUpdates ? "setAutomaticallyDownloadsUpdates:YES"
                                                               : "setAutomaticallyDownloadsUpdates:NO");
    Updater().automaticallyDownloadsUpdates = automaticallyDownloadsUpdates;
}

- (BOOL)updateInProgress
{
    if (Updater().onAskInProgress)
    {
        Updater().onAskInProgress();
    }
    return Updater().updateInProgress;
}

- (void)runCheck:(char const*)selector
{
    Updater().calls.emplace_back(selector);
    if (Updater().onCheck)
    {
        Updater().onCheck();
    }
}

- (void)checkForUpdateInformation
{
    [self runCheck:"checkForUpdateInformation"];
}

- (void)checkForUpdatesInBackground
{
    [self runCheck:"checkForUpdatesInBackground"];
}

- (void)checkForUpdates:(id)sender
{
    [self runCheck:sender ? "checkForUpdates:sender" : "checkForUpdates:nil"];
}

@end

@implementation SUStandardVersionComparator

+ (SUStandardVersionComparator*)defaultComparator
{
    static SUStandardVersionComparator* const comparator = [[SUStandardVersionComparator alloc] init];
    return comparator;
}

- (NSComparisonResult)compareVersion:(NSString*)versionA toVersion:(NSString*)versionB
{
    StandardComparator().compared.emplace_back(ToQString(versionA), ToQString(versionB));
    return static_cast<NSComparisonResult>(StandardComparator().answer);
}

@end

@implementation SUAppcast

- (NSArray*)items
{
    Pelnar::Testing::ScriptedAppcast const& items = Pelnar::Testing::ItemsOf(self);
    if (!items)
    {
        return nil;
    }
    NSMutableArray* const objects = [NSMutableArray array];
    for (Pelnar::Testing::ScriptedItem const& item : *items)
    {
        [objects addObject:Pelnar::Testing::ObjectOf(item)];
    }
    return objects;
}

@end

@implementation SUAppcastItem

- (NSString*)title
{
    return TextOrNil(ReadProperties(self, "title").title);
}

- (NSString*)dateString
{
    return TextOrNil(ReadProperties(self, "dateString").dateString);
}

- (NSString*)itemDescription
{
    return TextOrNil(ReadProperties(self, "itemDescription").itemDescription);
}

- (NSString*)itemDescriptionFormat
{
    return @"html";
}

- (NSString*)minimumSystemVersion
{
    return TextOrNil(ReadProperties(self, "minimumSystemVersion").minimumSystemVersion);
}

- (NSString*)maximumSystemVersion
{
    return TextOrNil(ReadProperties(self, "maximumSystemVersion").maximumSystemVersion);
}

- (NSURL*)releaseNotesURL
{
    return nil;
}

- (NSURL*)infoURL
{
    return nil;
}

- (NSURL*)fileURL
{
    QString const address = ReadProperties(self, "fileURL").fileUrl;
    return address.isNull() ? nil : [NSURL URLWithString:ToNSString(address)];
}

- (uint64_t)contentLength
{
    return ReadProperties(self, "contentLength").contentLength;
}

- (NSString*)versionString
{
    return TextOrNil(ReadProperties(self, "versionString").versionString);
}

- (NSString*)displayVersionString
{
    return [self versionString];
}

- (NSString*)edSignature
{
    return nil;
}

- (NSDictionary*)deltaUpdates
{
    Pelnar::Testing::ItemProperties const& properties = ReadProperties(self, "deltaUpdates");
    if (properties.deltas.empty())
    {
        return nil;
    }
    NSMutableDictionary* const deltas = [NSMutableDictionary dictionary];
    for (auto const& [from, delta] : properties.deltas)
    {
        [deltas setObject:Pelnar::Testing::ObjectOf(delta) forKey:ToNSString(from)];
    }
    return deltas;
}

- (BOOL)isDeltaUpdate
{
    return ReadProperties(self, "isDeltaUpdate").isDelta;
}

- (BOOL)isCriticalUpdate
{
    return NO;
}

- (NSString*)installationType
{
    return @"application";
}

- (NSDictionary*)propertiesDictionary
{
    NSMutableDictionary* const dictionary = [NSMutableDictionary dictionary];
    for (auto const& [name, value] : ReadProperties(self, "propertiesDictionary").properties)
    {
        [dictionary setObject:PropertyValue(value) forKey:ToNSString(name)];
    }
    return dictionary;
}

@end
