// CheckOutcome_p.h: the result of a finished check, computed from the two versions of its context.
// Thread: the Qt main thread, like the context.
#pragma once

#include "App/UpdateChecker/UpdateCheckResult.h"

namespace Pelnar::App
{

struct SparkleUpdateContext;

/// NoUpdate unless the remote version is newer by the context's operators; a major update if its major component is
/// greater. Throws std::bad_function_call if a needed operator is missing: equality is checked only for a remote
/// version that is not less.
[[nodiscard]] UpdateCheckResult OutcomeOf(SparkleUpdateContext const& context);

} // namespace Pelnar::App
