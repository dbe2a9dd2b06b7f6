#include "Foundation/FoundationText.h"
#include "tests/session/ScriptedSparkle.h"

using Pelnar::Foundation::ToNSString;
using Pelnar::Foundation::ToQString;

namespace Pelnar::Testing
{

std::optional<QString> StoredUserDefault(QString const& key)
{
    @autoreleasepool
    {
        NSString* const identifier = [[NSBundle mainBundle] bundleIdentifier];
        NSDictionary* const values = [[NSUserDefaults standardUserDefaults] persistentDomainForName:identifier];
        NSString* const value = [values objectForKey:ToNSString(key)];
        return value ? std::make_optional(ToQString(value)) : std::nullopt;
    }
}

bool HasUserDefaultsOfItsOwn()
{
    @autoreleasepool
    {
        return ToQString([[NSBundle mainBundle] bundleIdentifier]).startsWith(QStringLiteral("com.pelnar.isolated."));
    }
}

} // namespace Pelnar::Testing
