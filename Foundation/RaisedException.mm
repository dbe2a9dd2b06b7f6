#include "Foundation/RaisedException.h"

#include "Foundation/FoundationText.h"

namespace Pelnar::Foundation
{

namespace
{

/// GNUstep returns a placeholder for a nil reason, always the same object.
bool IsPlaceholder(NSString* reason)
{
    return reason == [[NSException exceptionWithName:NSGenericException reason:nil userInfo:nil] reason];
}

} // namespace

std::optional<std::string> ReasonRaisedBy(std::function<void()> const& call)
{
    @try
    {
        call();
    }
    @catch (NSException* exception)
    {
        NSString* const reason = [exception reason];
        return IsPlaceholder(reason) ? std::string() : ToUtf8(reason);
    }
    return std::nullopt;
}

void CallTranslatingRaised(std::function<void()> const& call)
{
    // Thrown outside the handler: a C++ exception must not start inside an Objective-C handler.
    if (std::optional<std::string> const reason = ReasonRaisedBy(call))
    {
        throw RaisedException(*reason);
    }
}

} // namespace Pelnar::Foundation
