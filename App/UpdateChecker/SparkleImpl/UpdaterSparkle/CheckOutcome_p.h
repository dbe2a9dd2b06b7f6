// CheckOutcome_p.h: what a finished check means, told from the two versions of its context.
// Thread: the Qt main thread, like the context. Ownership: none.
#pragma once

#include "App/UpdateChecker/UpdateCheckResult.h"

namespace Pelnar::App
{

struct SparkleUpdateContext;

/// NoUpdate unless the remote version is newer by the context's operators; a major update when its major component is
/// greater. Throws std::bad_function_call when an operator that it needs is missing: equality is asked only of a remote
/// version that is not less.
[[nodiscard]] UpdateCheckResult OutcomeOf(SparkleUpdateContext const& context);

} // namespace Pelnar::App
