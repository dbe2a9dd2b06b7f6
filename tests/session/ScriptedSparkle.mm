#include "tests/session/ScriptedSparkle.h"

#include "Foundation/FoundationText.h"
#include "Foundation/Retained.h"
#include "tests/session/ScriptedSparkleObjects.h"

#include <memory>

using Pelnar::Foundation::Retained;
using Pelnar::Foundation::ToNSString;
using Pelnar::Foundation::ToNSURL;
using Pelnar::Foundation::ToQString;
using Pelnar::Foundation::ToQUrl;
using Pelnar::Foundation::ToUtf8;

// The older Objective-C runtime lays fields out in the class's own declaration only, so the doubles' fields stand in
// subclasses, which are what is made.
@interface ScriptedItemObject : SUAppcastItem
{
  @public
    Pelnar::Testing::ScriptedItem::Object* m_object;
}
@end

@interface ScriptedAppcastObject : SUAppcast
{
  @public
    Pelnar::Testing::ScriptedAppcast* m_items;
}
@end

/// Receives the installing call.
@interface ScriptedInstaller : NSObject
{
  @public
    std::vector<std::pair<bool, bool>>* m_calls;
    std::function<void()>* m_onInvoke;
}
- (void)installWithRelaunch:(BOOL)relaunch userInterface:(BOOL)userInterface;
@end

namespace Pelnar::Testing
{

struct ScriptedItem::Object
{
    ItemProperties properties;
    Retained<ScriptedItemObject> item;
    std::optional<ScriptedItem> self;
};

struct ScriptedInvocation::Object
{
    std::vector<std::pair<bool, bool>> calls;
    std::function<void()> onInvoke;
    Retained<ScriptedInstaller> installer;
    Retained<NSInvocation> invocation;
};

namespace
{

NSString* Text(QString const& text) { return text.isNull() ? nil : ToNSString(text); }

/// Keeps what it is given as long as the process.
template <class T> T* Keep(std::unique_ptr<T> object)
{
    static auto* const kept = new std::vector<std::unique_ptr<T>>();
    kept->push_back(std::move(object));
    return kept->back().get();
}

/// What a getter does before it answers.
ItemProperties& Read(SUAppcastItem* item, char const* getter)
{
    ItemProperties& properties = static_cast<ScriptedItemObject*>(item)->m_object->properties;
    ++properties.reads[getter];
    auto const action = properties.onRead.find(getter);
    if (action != properties.onRead.end())
    {
        action->second();
    }
    return properties;
}

id PropertyValue(QVariant const& value)
{
    if (value.type() == QVariant::String)
    {
        return ToNSString(value.toString());
    }
    return [NSNumber numberWithLongLong:value.toLongLong()];
}

NSError* MakeError(ScriptedError const& error)
{
    NSDictionary* const info = [NSDictionary dictionaryWithObject:ToNSString(error.localizedDescription)
                                                           forKey:NSLocalizedDescriptionKey];
    return [NSError errorWithDomain:ToNSString(error.domain) code:error.code userInfo:info];
}

SUUpdater* Shared() { return [SUUpdater sharedUpdater]; }

} // namespace

void RaiseException(QString const& reason)
{
    @throw [NSException exceptionWithName:@"ScriptedException" reason:Text(reason) userInfo:nil];
}

UpdaterScript& Updater()
{
    static auto* const script = new UpdaterScript();
    return *script;
}

StandardComparatorScript& StandardComparator()
{
    static auto* const script = new StandardComparatorScript();
    return *script;
}

ScriptedItem::ScriptedItem(ItemProperties properties) : m_object(Keep(std::make_unique<Object>()))
{
    m_object->properties = std::move(properties);
    m_object->item = Retained<ScriptedItemObject>::Adopt([[ScriptedItemObject alloc] init]);
    m_object->item.Get()->m_object = m_object;
    m_object->self = *this;
}

ItemProperties& ScriptedItem::Properties() const { return m_object->properties; }

SUAppcastItem* ObjectOf(ScriptedItem const& item) { return item.GetObject().item.Get(); }

std::optional<ScriptedItem> ItemOf(SUAppcastItem* object)
{
    return object ? static_cast<ScriptedItemObject*>(object)->m_object->self : std::nullopt;
}

SUAppcast* MakeAppcast(ScriptedAppcast const& items)
{
    ScriptedAppcastObject* const appcast = [[[ScriptedAppcastObject alloc] init] autorelease];
    appcast->m_items = Keep(std::make_unique<ScriptedAppcast>(items));
    return appcast;
}

ScriptedInvocation::ScriptedInvocation(bool argument2, bool argument3) : m_object(Keep(std::make_unique<Object>()))
{
    @autoreleasepool
    {
        m_object->installer = Retained<ScriptedInstaller>::Adopt([[ScriptedInstaller alloc] init]);
        ScriptedInstaller* const installer = m_object->installer.Get();
        installer->m_calls = &m_object->calls;
        installer->m_onInvoke = &m_object->onInvoke;
        SEL const selector = @selector(installWithRelaunch:userInterface:);
        NSInvocation* const invocation =
            [NSInvocation invocationWithMethodSignature:[installer methodSignatureForSelector:selector]];
        [invocation setTarget:installer];
        [invocation setSelector:selector];
        BOOL relaunch = argument2;
        BOOL userInterface = argument3;
        [invocation setArgument:&relaunch atIndex:2];
        [invocation setArgument:&userInterface atIndex:3];
        m_object->invocation = Retained<NSInvocation>::Share(invocation);
    }
}

std::vector<std::pair<bool, bool>> const& ScriptedInvocation::Calls() const { return m_object->calls; }

void ScriptedInvocation::OnInvoke(std::function<void()> action) const { m_object->onInvoke = std::move(action); }

std::string DescriptionOf(ScriptedError const& error)
{
    @autoreleasepool
    {
        return ToUtf8([MakeError(error) description]);
    }
}

void Callbacks::DidFind(ScriptedItem const& item)
{
    @autoreleasepool
    {
        [[Shared() delegate] updater:Shared() didFindValidUpdate:ObjectOf(item)];
    }
}

void Callbacks::DidNotFind()
{
    @autoreleasepool
    {
        [[Shared() delegate] updaterDidNotFindUpdate:Shared()];
    }
}

void Callbacks::DidAbort(ScriptedError const& error)
{
    @autoreleasepool
    {
        [[Shared() delegate] updater:Shared() didAbortWithError:MakeError(error)];
    }
}

void Callbacks::WillInstallOnQuit(ScriptedItem const& item, ScriptedInvocation const& invocation)
{
    @autoreleasepool
    {
        [[Shared() delegate] updater:Shared()
                    willInstallUpdateOnQuit:ObjectOf(item)
            immediateInstallationInvocation:invocation.GetObject().invocation.Get()];
    }
}

bool Callbacks::ShouldRelaunch()
{
    @autoreleasepool
    {
        return [[Shared() delegate] updaterShouldRelaunchApplication:Shared()];
    }
}

void Callbacks::WillRelaunch()
{
    @autoreleasepool
    {
        [[Shared() delegate] updaterWillRelaunchApplication:Shared()];
    }
}

void Callbacks::DidCancelInstall(ScriptedItem const& item)
{
    @autoreleasepool
    {
        [[Shared() delegate] updater:Shared() didCancelInstallUpdateOnQuit:ObjectOf(item)];
    }
}

QString Callbacks::PathToRelaunch()
{
    @autoreleasepool
    {
        return ToQString([[Shared() delegate] pathToRelaunchForUpdater:Shared()]);
    }
}

std::optional<ScriptedItem> Callbacks::BestValidUpdate(ScriptedAppcast const& appcast)
{
    @autoreleasepool
    {
        return ItemOf([[Shared() delegate] bestValidUpdateInAppcast:MakeAppcast(appcast) forUpdater:Shared()]);
    }
}

int Callbacks::CompareVersions(QString const& versionA, QString const& versionB)
{
    @autoreleasepool
    {
        id<SUVersionComparison> const comparator = [[Shared() delegate] versionComparatorForUpdater:Shared()];
        return static_cast<int>([comparator compareVersion:Text(versionA) toVersion:Text(versionB)]);
    }
}

QString MainBundlePath()
{
    @autoreleasepool
    {
        return ToQString([[NSBundle mainBundle] bundlePath]);
    }
}

std::optional<QString> UserDefault(QString const& key)
{
    @autoreleasepool
    {
        NSString* const value = [[NSUserDefaults standardUserDefaults] stringForKey:ToNSString(key)];
        return value ? std::make_optional(ToQString(value)) : std::nullopt;
    }
}

std::optional<QString> StoredUserDefault(QString const& key)
{
    @autoreleasepool
    {
        NSString* const file = [[[NSProcessInfo processInfo] processName] stringByAppendingPathExtension:@"plist"];
        NSString* const folder = GSDefaultsRootForUser(NSUserName());
        NSDictionary* const values =
            [NSDictionary dictionaryWithContentsOfFile:[folder stringByAppendingPathComponent:file]];
        NSString* const value = [values objectForKey:ToNSString(key)];
        return value ? std::make_optional(ToQString(value)) : std::nullopt;
    }
}

QString UserDefaultsFolder()
{
    @autoreleasepool
    {
        return ToQString(GSDefaultsRootForUser(NSUserName()));
    }
}

} // namespace Pelnar::Testing

using Pelnar::Testing::Read;
using Pelnar::Testing::StandardComparator;
using Pelnar::Testing::Text;
using Pelnar::Testing::Updater;

@implementation ScriptedInstaller

- (void)installWithRelaunch:(BOOL)relaunch userInterface:(BOOL)userInterface
{
    m_calls->emplace_back(relaunch, userInterface);
    if (*m_onInvoke)
    {
        (*m_onInvoke)();
    }
}

@end

namespace
{

id<SUUpdaterDelegate> currentDelegate = nil;

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
    Pelnar::Testing::ScriptedAppcast const& items = *static_cast<ScriptedAppcastObject*>(self)->m_items;
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

@implementation ScriptedAppcastObject
@end

@implementation SUAppcastItem

- (NSString*)title
{
    return Text(Read(self, "title").title);
}

- (NSString*)dateString
{
    return Text(Read(self, "dateString").dateString);
}

- (NSString*)itemDescription
{
    return Text(Read(self, "itemDescription").itemDescription);
}

- (NSString*)itemDescriptionFormat
{
    return @"html";
}

- (NSString*)minimumSystemVersion
{
    return Text(Read(self, "minimumSystemVersion").minimumSystemVersion);
}

- (NSString*)maximumSystemVersion
{
    return Text(Read(self, "maximumSystemVersion").maximumSystemVersion);
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
    QString const address = Read(self, "fileURL").fileUrl;
    return address.isNull() ? nil : [NSURL URLWithString:ToNSString(address)];
}

- (uint64_t)contentLength
{
    return Read(self, "contentLength").contentLength;
}

- (NSString*)versionString
{
    return Text(Read(self, "versionString").versionString);
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
    Pelnar::Testing::ItemProperties const& properties = Read(self, "deltaUpdates");
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
    return Read(self, "isDeltaUpdate").isDelta;
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
    for (auto const& [name, value] : Read(self, "propertiesDictionary").properties)
    {
        [dictionary setObject:Pelnar::Testing::PropertyValue(value) forKey:ToNSString(name)];
    }
    return dictionary;
}

@end

@implementation ScriptedItemObject
@end
