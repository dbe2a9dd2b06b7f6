// BackOff.h: how long automatic checks wait after failures. Pure functions.
#pragma once

#include <QDateTime>

#include <chrono>

namespace Pelnar::Engine
{

/// The record of earlier checks, in the user defaults.
struct BackOffState
{
    int failures = 0;      ///< failed background checks in a row, including downloads and preparations
    QDateTime lastFailure; ///< invalid while no failure is stored

    bool operator==(BackOffState const& other) const
    {
        return failures == other.failures && lastFailure == other.lastFailure;
    }
    bool operator!=(BackOffState const& other) const { return !(*this == other); }
};

/// After this many failures in a row the log says more.
constexpr int FAILURES_TO_TELL = 3;

/// After \a failures in a row: 1, 2, 4 … hours, at most 24.
[[nodiscard]] std::chrono::hours BackOffAfter(int failures);

/// True if an automatic check has to wait at \a now. A failure in the future, because the clock was set back, delays
/// nothing.
[[nodiscard]] bool IsHeldBack(BackOffState const& state, QDateTime const& now);

[[nodiscard]] BackOffState AfterFailure(BackOffState const& state, QDateTime const& now);

} // namespace Pelnar::Engine
