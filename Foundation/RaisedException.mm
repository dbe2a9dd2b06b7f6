#include "Foundation/RaisedException.h"

#include "Foundation/FoundationText.h"

namespace Pelnar::Foundation
{

std::optional<std::string> ReasonRaisedBy(std::function<void()> const& call)
{
    @try
    {
        call();
    }
    @catch (NSException* exception)
    {
        return ToUtf8([exception reason]);
    }
    return std::nullopt;
}

void CallTranslatingRaised(std::function<void()> const& call)
{
    // Thrown outside the handler: a C++ exception does not start inside an Objective-C one.
    if (std::optional<std::string> const reason = ReasonRaisedBy(call))
    {
        throw RaisedException(*reason);
    }
}

} // namespace Pelnar::Foundation
