// DelegateCall.h: the one place that catches failures of the application's code.
// Thread: the caller's.
#pragma once

#include "Engine/core/faults/EngineError.h"

#include <functional>
#include <optional>

namespace Pelnar::Engine
{

/// Runs \a call, which asks or notifies the application; \a what is its name in the log. Returns the error for an
/// exception, or nothing.
[[nodiscard]] std::optional<EngineError> CallDelegate(char const* what, std::function<void()> const& call);

} // namespace Pelnar::Engine
