#include <Pelnar/FeedAge.h>

#include "Engine/objc/BundleSettings_p.h"

int Pelnar::UnchangedFeedDays()
{
    @autoreleasepool
    {
        return Engine::UnchangedDays(Engine::ReadFeedRecord());
    }
}
