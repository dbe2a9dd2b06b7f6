#include <Pelnar/HostRequests_p.h>

#include "Engine/objc/BundleSettings_p.h"

Pelnar::AutomaticDownload Pelnar::Engine::WishedDownloads()
{
    @autoreleasepool
    {
        return ReadAutomaticDownload() == AutomaticDownload::On ? Pelnar::AutomaticDownload::On
                                                                : Pelnar::AutomaticDownload::Off;
    }
}

void Pelnar::Engine::WishDownloads(Pelnar::AutomaticDownload wish)
{
    @autoreleasepool
    {
        WriteAutomaticDownload(wish == Pelnar::AutomaticDownload::On ? AutomaticDownload::On : AutomaticDownload::Off);
    }
}
