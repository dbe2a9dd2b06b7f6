#include "Demo/EngineDefaults.h"

#include "Foundation/FoundationText.h"

namespace Pelnar::Demo
{

void SetFeedPlatform(QString const& platform)
{
    @autoreleasepool
    {
        NSDictionary* const values = [NSDictionary dictionaryWithObject:Foundation::ToNSString(platform)
                                                                 forKey:@"PelnarFeedPlatform"];
        [[NSUserDefaults standardUserDefaults] registerDefaults:values];
    }
}

} // namespace Pelnar::Demo
