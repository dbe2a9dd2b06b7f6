// CauseOf.h: the cause of a failed step of the host, for comparisons in tests.
#pragma once

#include "Engine/core/faults/Result.h"

#include <optional>

namespace Pelnar::Testing
{

/// Empty if it succeeded.
template <typename Value>
std::optional<Engine::ErrorCause> CauseOf(Engine::Result<Value> const& result)
{
    return result ? std::nullopt : std::optional(result.error().cause);
}

} // namespace Pelnar::Testing
