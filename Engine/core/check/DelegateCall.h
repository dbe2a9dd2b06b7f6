// DelegateCall.h: the one place that catches failures of the application's code.
// Thread: the caller's.
#pragma once

#include "Engine/core/faults/Result.h"

#include <functional>

namespace Pelnar::Engine
{

/// Runs \a call, which asks or notifies the application; \a what is its name in the log. Fails if it
/// throws.
[[nodiscard]] Result<void> CallDelegate(char const* what, std::function<void()> const& call);

} // namespace Pelnar::Engine
