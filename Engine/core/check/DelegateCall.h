// DelegateCall.h: the one place where failures of the application's code end.
// Thread: the caller's. Ownership: values only.
#pragma once

#include "Engine/core/EngineError.h"

#include <functional>
#include <optional>

namespace Pelnar::Engine
{

/// Runs \a call, which asks or tells the application something that goes by the name \a what in the log. The error that
/// stands for what it throws, or nothing.
[[nodiscard]] std::optional<EngineError> FailureOf(char const* what, std::function<void()> const& call);

} // namespace Pelnar::Engine
