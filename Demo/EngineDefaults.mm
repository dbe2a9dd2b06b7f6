#include "Demo/EngineDefaults.h"

#include "Foundation/FoundationText.h"
#include "common/SettingKeys.h"

namespace Pelnar::Demo
{

void SetFeedPlatform(QString const& platform)
{
    @autoreleasepool
    {
        NSDictionary* const values = [NSDictionary
            dictionaryWithObject:Foundation::ToNSString(platform)
                          forKey:[NSString stringWithUTF8String:Core::KeyOf(Core::Setting::FeedPlatform).name.data()]];
        [[NSUserDefaults standardUserDefaults] registerDefaults:values];
    }
}

QString BundleText(QString const& key)
{
    @autoreleasepool
    {
        id const value = [[[NSBundle mainBundle] infoDictionary] objectForKey:Foundation::ToNSString(key)];
        return [value isKindOfClass:[NSString class]] ? Foundation::ToQString(value) : QString();
    }
}

} // namespace Pelnar::Demo
