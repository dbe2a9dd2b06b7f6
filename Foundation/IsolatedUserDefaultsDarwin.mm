#include "Foundation/IsolatedUserDefaults.h"

#include "Foundation/RaisedException.h"
#include "Foundation/Retained.h"

#include <QtGlobal>

namespace Pelnar::Foundation
{

struct IsolatedUserDefaults::Impl
{
    Retained<NSString> identifier;
};

namespace
{

/// Foundation names the user defaults of a process after the main bundle's identifier.
[[nodiscard]] bool GiveMainBundle(NSString* identifier)
{
    NSDictionary* const information = [[NSBundle mainBundle] infoDictionary];
    std::optional<std::string> const reason = ReasonRaisedBy(
        [information, identifier]
        { [static_cast<NSMutableDictionary*>(information) setObject:identifier forKey:@"CFBundleIdentifier"]; });
    return !reason && [identifier isEqual:[[NSBundle mainBundle] bundleIdentifier]];
}

/// The bundle's identifier and the place of the defaults are independent: this checks that a written value can be read
/// back.
[[nodiscard]] bool DefaultsGoTo(NSString* identifier)
{
    NSString* const key = @"PelnarIsolationProbe";
    NSUserDefaults* const defaults = [NSUserDefaults standardUserDefaults];
    [defaults setObject:identifier forKey:key];
    bool const hasArrived = [identifier isEqual:[[defaults persistentDomainForName:identifier] objectForKey:key]];
    [defaults removeObjectForKey:key];
    return hasArrived;
}

} // namespace

IsolatedUserDefaults::IsolatedUserDefaults() : m_impl(std::make_unique<Impl>())
{
    @autoreleasepool
    {
        NSString* const identifier = [@"com.pelnar.isolated."
            stringByAppendingString:[[NSProcessInfo processInfo] globallyUniqueString]];
        m_impl->identifier = Retained<NSString>::Share(identifier);
        if (!GiveMainBundle(identifier) || !DefaultsGoTo(identifier))
        {
            qFatal("This program cannot keep its user defaults apart from yours, so it does not start. "
                   "Run it as the executable of an application bundle.");
        }
    }
}

IsolatedUserDefaults::~IsolatedUserDefaults()
{
    @autoreleasepool
    {
        NSUserDefaults* const defaults = [NSUserDefaults standardUserDefaults];
        [defaults removePersistentDomainForName:m_impl->identifier.Get()];
        [defaults synchronize];
    }
}

} // namespace Pelnar::Foundation
