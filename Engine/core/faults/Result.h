// Result.h: what a step of the host returns that can fail: its value, or the error.
#pragma once

#include "Engine/core/faults/EngineError.h"

#include <tl/expected.hpp>

namespace Pelnar::Engine
{

template <typename Value>
using Result = tl::expected<Value, EngineError>;

/// The error of a Result.
inline tl::unexpected<EngineError> Failure(EngineError error)
{
    return tl::unexpected<EngineError>(std::move(error));
}

inline tl::unexpected<EngineError> Failure(ErrorCause cause, QString const& remoteDetail = {})
{
    return Failure(MakeError(cause, remoteDetail));
}

inline tl::unexpected<EngineError> Failure(UpdateRefusal const& refusal)
{
    return Failure(MakeFaultError(refusal.Fault(), refusal.ErrorNumber()));
}

} // namespace Pelnar::Engine
