#include <Pelnar/AutomaticDownloads.h>

#import <Sparkle/Sparkle.h>

Pelnar::AutomaticDownload Pelnar::AutomaticDownloads()
{
    @autoreleasepool
    {
        bool const isOn = [[SUUpdater sharedUpdater] automaticallyDownloadsUpdates];
        return isOn ? AutomaticDownload::On : AutomaticDownload::Off;
    }
}

void Pelnar::SetAutomaticDownloads(AutomaticDownload wish)
{
    @autoreleasepool
    {
        [[SUUpdater sharedUpdater] setAutomaticallyDownloadsUpdates:wish == AutomaticDownload::On];
    }
}
