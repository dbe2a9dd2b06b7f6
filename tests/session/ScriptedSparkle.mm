#include "tests/session/ScriptedSparkle.h"

#include "Foundation/FoundationText.h"
#include "Foundation/Retained.h"
#include "tests/session/ScriptedSparkleObjects.h"

#include <memory>

using Pelnar::Foundation::Retained;
using Pelnar::Foundation::ToNSString;
using Pelnar::Foundation::ToQString;
using Pelnar::Foundation::ToUtf8;

// The older Objective-C runtime allows fields only in the class's own declaration. So the doubles have their fields in
// subclasses, and the tests make objects of these.
@interface ScriptedItemObject : SUAppcastItem
{
  @public
    Pelnar::Testing::ScriptedItem::Object* m_object;
    bool* m_isGone;
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
    bool isGone = false;
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

/// Keeps its arguments as long as the process lives.
template <class T> T* Keep(std::unique_ptr<T> object)
{
    static auto* const kept = new std::vector<std::unique_ptr<T>>();
    kept->push_back(std::move(object));
    return kept->back().get();
}

NSError* MakeError(ScriptedError const& error)
{
    NSDictionary* const info = [NSDictionary dictionaryWithObject:ToNSString(error.localizedDescription)
                                                           forKey:NSLocalizedDescriptionKey];
    return [NSError errorWithDomain:ToNSString(error.domain) code:error.code userInfo:info];
}

SUUpdater* Shared() { return [SUUpdater sharedUpdater]; }

} // namespace

NSString* TextOrNil(QString const& text) { return text.isNull() ? nil : ToNSString(text); }

ItemProperties& ReadProperties(SUAppcastItem* item, char const* getter)
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

ScriptedAppcast const& ItemsOf(SUAppcast* appcast) { return *static_cast<ScriptedAppcastObject*>(appcast)->m_items; }

void RaiseException(QString const& reason)
{
    @throw [NSException exceptionWithName:@"ScriptedException" reason:TextOrNil(reason) userInfo:nil];
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
    m_object->item.Get()->m_isGone = &m_object->isGone;
    m_object->self = *this;
}

ItemProperties& ScriptedItem::Properties() const { return m_object->properties; }

int ScriptedItem::References() const { return static_cast<int>([m_object->item.Get() retainCount]); }

void ScriptedItem::LetGo() const { m_object->item.Reset(); }

bool ScriptedItem::IsGone() const { return m_object->isGone; }

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

int ScriptedInvocation::References() const { return static_cast<int>([m_object->invocation.Get() retainCount]); }

void ScriptedInvocation::LetGo() const { m_object->invocation.Reset(); }

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
        return static_cast<int>([comparator compareVersion:TextOrNil(versionA) toVersion:TextOrNil(versionB)]);
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

} // namespace Pelnar::Testing

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

@implementation ScriptedAppcastObject
@end

@implementation ScriptedItemObject

- (void)dealloc
{
    *m_isGone = true;
    [super dealloc];
}

@end
