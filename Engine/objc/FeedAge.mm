#include <Pelnar/HostRequests_p.h>

#include "Engine/objc/BundleSettings_p.h"

int Pelnar::Engine::DaysOfUnchangedFeed()
{
    @autoreleasepool
    {
        return UnchangedDays(ReadFeedRecord());
    }
}
