#include "App/UpdateChecker/SparkleImpl/SparkleManager/PelnarSparkleUpdaterDelegate.h"

#include "App/UpdateChecker/SparkleImpl/SparkleManager/PelnarSparkleVersionComparator.h"

@implementation PelnarSparkleUpdaterDelegate

- (instancetype)initWithImpl:(Pelnar::App::SparkleManager::Impl*)impl
{
    self = [super init];
    if (self)
    {
        m_impl = impl;
    }
    return self;
}

- (id<SUVersionComparison>)versionComparatorForUpdater:(SUUpdater*)updater
{
    return m_impl->comparator.Get();
}

- (void)updater:(SUUpdater*)updater didFindValidUpdate:(SUAppcastItem*)item
{
    @autoreleasepool
    {
        m_impl->DidFindValidUpdate(item);
    }
}

- (void)updaterDidNotFindUpdate:(SUUpdater*)updater
{
    @autoreleasepool
    {
        m_impl->DidNotFindUpdate();
    }
}

- (void)updater:(SUUpdater*)updater didAbortWithError:(NSError*)error
{
    @autoreleasepool
    {
        m_impl->DidAbort(error);
    }
}

- (void)updater:(SUUpdater*)updater
            willInstallUpdateOnQuit:(SUAppcastItem*)item
    immediateInstallationInvocation:(NSInvocation*)invocation
{
    @autoreleasepool
    {
        m_impl->WillInstallOnQuit(item, invocation);
    }
}

- (BOOL)updaterShouldRelaunchApplication:(SUUpdater*)updater
{
    return m_impl->ShouldRelaunch();
}

- (void)updaterWillRelaunchApplication:(SUUpdater*)updater
{
    m_impl->WillRelaunch();
}

- (void)updater:(SUUpdater*)updater didCancelInstallUpdateOnQuit:(SUAppcastItem*)item
{
    m_impl->DidCancelInstallOnQuit();
}

- (NSString*)pathToRelaunchForUpdater:(SUUpdater*)updater
{
    return m_impl->PathToRelaunch();
}

- (SUAppcastItem*)bestValidUpdateInAppcast:(SUAppcast*)appcast forUpdater:(SUUpdater*)updater
{
    return m_impl->SelectBestOfAppcast(appcast);
}

@end
