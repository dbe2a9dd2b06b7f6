#include "Foundation/FoundationText.h"
#include "tests/session/ScriptedSparkle.h"

#include <QDir>

using Pelnar::Foundation::ToNSString;
using Pelnar::Foundation::ToQString;

namespace Pelnar::Testing
{

std::optional<QString> StoredUserDefault(QString const& key)
{
    @autoreleasepool
    {
        NSString* const file = [[[NSProcessInfo processInfo] processName] stringByAppendingPathExtension:@"plist"];
        NSString* const folder = GSDefaultsRootForUser(NSUserName());
        NSDictionary* const values =
            [NSDictionary dictionaryWithContentsOfFile:[folder stringByAppendingPathComponent:file]];
        NSString* const value = [values objectForKey:ToNSString(key)];
        return value ? std::make_optional(ToQString(value)) : std::nullopt;
    }
}

bool HasUserDefaultsOfItsOwn()
{
    @autoreleasepool
    {
        return ToQString(GSDefaultsRootForUser(NSUserName())).startsWith(QDir::tempPath());
    }
}

} // namespace Pelnar::Testing
