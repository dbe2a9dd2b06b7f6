#import "Engine/objc/SUUpdater_p.h"

#include "Engine/objc/BundleSettings_p.h"
#include "Engine/objc/Updater_p.h"
#include "Foundation/FoundationText.h"

using namespace Pelnar::Engine;
using namespace Pelnar::Foundation;

@implementation SUUpdater

+ (SUUpdater*)sharedUpdater
{
    static SUUpdater* const updater = [[SUUpdater alloc] init];
    return updater;
}

- (id)init
{
    self = [super init];
    if (self)
    {
        m_updater = std::make_shared<Updater>(self);
    }
    return self;
}

- (id<SUUpdaterDelegate>)delegate
{
    return m_updater->Delegate();
}

- (void)setDelegate:(id<SUUpdaterDelegate>)delegate
{
    m_updater->SetDelegate(delegate);
}

- (NSURL*)feedURL
{
    return ToNSURL(m_updater->FeedUrl());
}

- (void)setFeedURL:(NSURL*)url
{
    m_updater->SetFeedUrl(ToQUrl(url));
}

- (BOOL)automaticallyChecksForUpdates
{
    return m_updater->unusedSettings.automaticallyChecksForUpdates;
}

- (void)setAutomaticallyChecksForUpdates:(BOOL)value
{
    m_updater->unusedSettings.automaticallyChecksForUpdates = value;
}

- (BOOL)sendsSystemProfile
{
    return m_updater->unusedSettings.sendsSystemProfile;
}

- (void)setSendsSystemProfile:(BOOL)value
{
    m_updater->unusedSettings.sendsSystemProfile = value;
}

- (BOOL)automaticallyDownloadsUpdates
{
    @autoreleasepool
    {
        return ReadAutomaticDownload() == AutomaticDownload::On;
    }
}

- (void)setAutomaticallyDownloadsUpdates:(BOOL)value
{
    @autoreleasepool
    {
        WriteAutomaticDownload(value ? AutomaticDownload::On : AutomaticDownload::Off);
    }
}

- (BOOL)updateInProgress
{
    return m_updater->IsInProgress();
}

- (void)checkForUpdateInformation
{
    @autoreleasepool
    {
        m_updater->StartCheck(CheckKind::Probe);
    }
}

- (void)checkForUpdatesInBackground
{
    @autoreleasepool
    {
        m_updater->StartCheck(CheckKind::Background);
    }
}

- (void)checkForUpdates:(id)sender
{
    (void)sender;
    @autoreleasepool
    {
        m_updater->StartCheck(CheckKind::Interactive);
    }
}

@end

@implementation SUUpdater (Engine)

- (void)setFetchLimits:(FetchLimits const&)limits
{
    m_updater->SetFetchLimits(limits);
}

- (void)setUpdateEnvironment:(IUpdateEnvironment*)parts
{
    m_updater->SetParts(parts);
}

- (void)setUpdateWindows:(IUserInterface*)windows
{
    m_updater->SetWindows(windows);
}

- (void)confirmGoodStart
{
    @autoreleasepool
    {
        m_updater->ConfirmStart();
    }
}

@end
