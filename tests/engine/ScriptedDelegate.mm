#include "tests/engine/ScriptedDelegate.h"

#import <Sparkle/Sparkle.h>

#import "Engine/objc/SUUpdater_p.h"

#include "Foundation/FoundationText.h"
#include "Foundation/Retained.h"
#include "tests/support/DialogDriver.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

using namespace Pelnar::Foundation;
using namespace Pelnar::Testing;

@interface ScriptedDelegate : NSObject <SUUpdaterDelegate, SUVersionComparison>
{
  @public
    UpdaterDriver::Impl* impl;
}
@end

namespace Pelnar::Testing
{

std::vector<std::string> const CHECK_METHODS = {
    "bestValidUpdateInAppcast:forUpdater:", "versionComparatorForUpdater:", "updater:didFindValidUpdate:",
    "updaterDidNotFindUpdate:", "updater:didAbortWithError:"};

std::vector<std::string> const UPDATE_METHODS = {
    "updater:willInstallUpdateOnQuit:immediateInstallationInvocation:", "updater:didCancelInstallUpdateOnQuit:",
    "updaterShouldRelaunchApplication:", "updaterWillRelaunchApplication:", "pathToRelaunchForUpdater:"};

struct HeldInvocation::Impl
{
    Retained<NSInvocation> invocation;
};

namespace
{

constexpr NSInteger RELAUNCH_ARGUMENT = 2;
constexpr NSInteger USER_INTERFACE_ARGUMENT = 3;

bool BoolArgument(NSInvocation* invocation, NSInteger index)
{
    BOOL value = NO;
    [invocation getArgument:&value atIndex:index];
    return value;
}

void SetBoolArgument(NSInvocation* invocation, NSInteger index, bool value)
{
    BOOL argument = value ? YES : NO;
    [invocation setArgument:&argument atIndex:index];
}

} // namespace

bool HeldInvocation::Relaunches() const { return BoolArgument(impl->invocation.Get(), RELAUNCH_ARGUMENT); }

bool HeldInvocation::ShowsUserInterface() const
{
    return BoolArgument(impl->invocation.Get(), USER_INTERFACE_ARGUMENT);
}

void HeldInvocation::SetRelaunches(bool value) { SetBoolArgument(impl->invocation.Get(), RELAUNCH_ARGUMENT, value); }

void HeldInvocation::SetShowsUserInterface(bool value)
{
    SetBoolArgument(impl->invocation.Get(), USER_INTERFACE_ARGUMENT, value);
}

void HeldInvocation::Invoke() { [impl->invocation.Get() invoke]; }

struct UpdaterDriver::Impl
{
    DelegateScript script;
    Retained<ScriptedDelegate> delegate;
    std::vector<std::string> events;
    std::vector<ToldError> errors;
    std::optional<FoundItem> found;
    int questions = 0;
    Retained<SUAppcastItem> itemOfAnotherFeed;

    [[nodiscard]] bool IsHidden(std::string const& name) const
    {
        return std::find(script.hidden.begin(), script.hidden.end(), name) != script.hidden.end();
    }

    void Note(SEL method, std::string const& event)
    {
        std::string const name = ToUtf8(NSStringFromSelector(method));
        events.push_back(IsHidden(name) ? "hidden " + name : event);
        if (script.onEvent)
        {
            script.onEvent(events.back());
        }
    }
};

} // namespace Pelnar::Testing

@implementation ScriptedDelegate

- (BOOL)respondsToSelector:(SEL)selector
{
    return !impl->IsHidden(ToUtf8(NSStringFromSelector(selector))) && [super respondsToSelector:selector];
}

- (SUAppcastItem*)bestValidUpdateInAppcast:(SUAppcast*)appcast forUpdater:(SUUpdater*)updater
{
    (void)updater;
    std::vector<QString> versions;
    for (SUAppcastItem* const item in [appcast items])
    {
        versions.push_back(ToQString([item versionString]));
    }
    impl->Note(_cmd, "asked");
    ScriptedChoice const choice =
        impl->script.choose ? impl->script.choose(impl->questions++, versions) : ScriptedChoice();
    NSArray* const items = [appcast items];
    switch (choice.kind)
    {
    case ScriptedChoice::Kind::None:
        return nil;
    case ScriptedChoice::Kind::Item:
        return [items objectAtIndex:static_cast<NSUInteger>(choice.item)];
    case ScriptedChoice::Kind::Delta:
        return [[[items objectAtIndex:static_cast<NSUInteger>(choice.item)] deltaUpdates]
            objectForKey:ToNSString(choice.deltaFrom)];
    case ScriptedChoice::Kind::Foreign:
        return impl->itemOfAnotherFeed.Get();
    case ScriptedChoice::Kind::Dangling:
        return reinterpret_cast<SUAppcastItem*>(uintptr_t(0x10));
    }
    return nil;
}

- (id<SUVersionComparison>)versionComparatorForUpdater:(SUUpdater*)updater
{
    (void)updater;
    if (impl->IsHidden("versionComparatorForUpdater:"))
    {
        impl->events.push_back("hidden versionComparatorForUpdater:");
    }
    return impl->script.compare ? self : nil;
}

- (NSComparisonResult)compareVersion:(NSString*)versionA toVersion:(NSString*)versionB
{
    return static_cast<NSComparisonResult>(impl->script.compare(ToQString(versionA), ToQString(versionB)));
}

- (void)updater:(SUUpdater*)updater didFindValidUpdate:(SUAppcastItem*)item
{
    (void)updater;
    UpdaterDriver::FoundItem found;
    found.title = ToQString([item title]);
    found.version = ToQString([item versionString]);
    found.file = ToQUrl([item fileURL]);
    found.length = static_cast<qint64>([item contentLength]);
    found.isDelta = [item isDeltaUpdate];
    for (NSString* const version in [[item deltaUpdates] allKeys])
    {
        found.deltaVersions.push_back(ToQString(version));
    }
    impl->found = found;
    impl->itemOfAnotherFeed = Retained<SUAppcastItem>::Share(item);
    impl->Note(_cmd, "found " + found.version.toStdString());
}

- (void)updaterDidNotFindUpdate:(SUUpdater*)updater
{
    (void)updater;
    impl->Note(_cmd, "not found");
}

- (void)updater:(SUUpdater*)updater didAbortWithError:(NSError*)error
{
    (void)updater;
    NSError* const cause = [[error userInfo] objectForKey:NSUnderlyingErrorKey];
    impl->errors.push_back(
        {ToUtf8([error domain]), static_cast<int>([error code]), ToUtf8([error localizedDescription]),
         ToUtf8([cause domain]), static_cast<int>([cause code]),
         ToUtf8([[cause userInfo] objectForKey:NSLocalizedDescriptionKey]), ToUtf8([error description])});
    impl->Note(_cmd, "aborted " + std::to_string([error code]));
}

- (void)updater:(SUUpdater*)updater
            willInstallUpdateOnQuit:(SUAppcastItem*)item
    immediateInstallationInvocation:(NSInvocation*)invocation
{
    (void)updater;
    impl->Note(_cmd, "will install " + ToUtf8([item versionString]));
    if (impl->script.onWillInstall)
    {
        HeldInvocation held;
        held.impl = std::make_shared<HeldInvocation::Impl>();
        held.impl->invocation = Retained<NSInvocation>::Share(invocation);
        impl->script.onWillInstall(held);
    }
}

- (void)updater:(SUUpdater*)updater didCancelInstallUpdateOnQuit:(SUAppcastItem*)item
{
    (void)updater;
    impl->Note(_cmd, "cancelled " + ToUtf8([item versionString]));
}

- (BOOL)updaterShouldRelaunchApplication:(SUUpdater*)updater
{
    (void)updater;
    impl->Note(_cmd, "should relaunch?");
    return impl->script.allowsRelaunch;
}

- (void)updaterWillRelaunchApplication:(SUUpdater*)updater
{
    (void)updater;
    impl->Note(_cmd, "will relaunch");
}

- (NSString*)pathToRelaunchForUpdater:(SUUpdater*)updater
{
    (void)updater;
    impl->Note(_cmd, "path?");
    return impl->script.relaunchPath.isEmpty() ? nil : ToNSString(impl->script.relaunchPath);
}

@end

namespace Pelnar::Testing
{

UpdaterDriver::UpdaterDriver(DelegateScript script) : m_impl(std::make_unique<Impl>())
{
    @autoreleasepool
    {
        m_impl->script = std::move(script);
        m_impl->delegate = Retained<ScriptedDelegate>::Adopt([[ScriptedDelegate alloc] init]);
        m_impl->delegate.Get()->impl = m_impl.get();
        [[SUUpdater sharedUpdater] setDelegate:m_impl->delegate.Get()];
    }
}

UpdaterDriver::~UpdaterDriver()
{
    RemoveDelegate();
    [[SUUpdater sharedUpdater] setUpdateEnvironment:nullptr];
    [[SUUpdater sharedUpdater] setUpdateWindows:nullptr];
}

void UpdaterDriver::SetUpdate(Engine::IUpdateEnvironment& parts, Engine::IUserInterface& windows)
{
    [[SUUpdater sharedUpdater] setUpdateEnvironment:&parts];
    [[SUUpdater sharedUpdater] setUpdateWindows:&windows];
}

void UpdaterDriver::SetFeed(QUrl const& url)
{
    @autoreleasepool
    {
        [[SUUpdater sharedUpdater] setFeedURL:ToNSURL(url)];
    }
}

QUrl UpdaterDriver::Feed() const
{
    @autoreleasepool
    {
        return ToQUrl([[SUUpdater sharedUpdater] feedURL]);
    }
}

void UpdaterDriver::SetLimits(Engine::FetchLimits const& limits) { [[SUUpdater sharedUpdater] setFetchLimits:limits]; }

void UpdaterDriver::RemoveDelegate() { [[SUUpdater sharedUpdater] setDelegate:nil]; }

void UpdaterDriver::Probe() { [[SUUpdater sharedUpdater] checkForUpdateInformation]; }

void UpdaterDriver::CheckInBackground() { [[SUUpdater sharedUpdater] checkForUpdatesInBackground]; }

void UpdaterDriver::CheckInteractively() { [[SUUpdater sharedUpdater] checkForUpdates:nil]; }

bool UpdaterDriver::IsInProgress() const { return [[SUUpdater sharedUpdater] updateInProgress]; }

bool UpdaterDriver::DownloadsAutomatically() const { return [[SUUpdater sharedUpdater] automaticallyDownloadsUpdates]; }

void UpdaterDriver::SetDownloadsAutomatically(bool value)
{
    [[SUUpdater sharedUpdater] setAutomaticallyDownloadsUpdates:value];
}

std::vector<std::string> const& UpdaterDriver::Events() const { return m_impl->events; }

std::vector<ToldError> const& UpdaterDriver::Errors() const { return m_impl->errors; }

std::optional<UpdaterDriver::FoundItem> const& UpdaterDriver::Found() const { return m_impl->found; }

bool UpdaterDriver::WaitForEnd()
{
    return WaitFor([this] { return !IsInProgress(); });
}

void RaiseInFoundation(char const* reason)
{
    @autoreleasepool
    {
        [[NSException exceptionWithName:@"TestException" reason:ToNSString(QString::fromUtf8(reason))
                               userInfo:nil] raise];
    }
}

int CompareByStandard(QString const& a, QString const& b)
{
    @autoreleasepool
    {
        return static_cast<int>([[SUStandardVersionComparator defaultComparator] compareVersion:ToNSString(a)
                                                                                      toVersion:ToNSString(b)]);
    }
}

} // namespace Pelnar::Testing
