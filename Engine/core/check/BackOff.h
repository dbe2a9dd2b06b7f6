// BackOff.h: how long checks that nobody asked for are held back after failures. Pure decisions.
// Thread: any; no state. Ownership: values only.
#pragma once

#include <QDateTime>

#include <chrono>

namespace Pelnar::Engine
{

/// What is kept of the checks so far, in the user defaults.
struct BackOffState
{
    int failures = 0;      ///< background checks in a row that failed, downloads and preparations included
    QDateTime lastFailure; ///< invalid when there is none

    bool operator==(BackOffState const& other) const
    {
        return failures == other.failures && lastFailure == other.lastFailure;
    }
    bool operator!=(BackOffState const& other) const { return !(*this == other); }
};

/// Failures in a row after which the log speaks of more than bad luck.
constexpr int FAILURES_TO_TELL = 3;

/// After \a failures in a row: 1, 2, 4 … hours, at most 24.
[[nodiscard]] std::chrono::hours BackOffAfter(int failures);

/// Whether a check that nobody asked for has to wait at \a now. A failure that lies in the future, because the clock
/// was set back, holds nothing up.
[[nodiscard]] bool IsHeldBack(BackOffState const& state, QDateTime const& now);

[[nodiscard]] BackOffState AfterFailure(BackOffState const& state, QDateTime const& now);

} // namespace Pelnar::Engine
