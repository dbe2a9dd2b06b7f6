#include "Engine/core/feed/FeedError.h"

namespace Pelnar::Engine
{

EngineError MakeFeedError(FeedParseError const& error)
{
    EngineError result = MakeError(static_cast<ErrorCause>(error.kind), error.detail);
    if (result.cause != ErrorCause::FeedIsWebPage)
    {
        result.sentence = result.sentence.FollowedBy(error.sentence); // which names the line
    }
    return result;
}

} // namespace Pelnar::Engine
