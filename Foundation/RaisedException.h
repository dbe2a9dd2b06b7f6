// RaisedException.h: the one place that catches exceptions raised by Foundation code.
// C++ and Objective-C++. Only Objective-C++ can catch an Objective-C exception, and only C++ can catch a C++
// exception; with GNUstep a C++ `catch` in an Objective-C++ file ends the process. This helper converts the first
// kind for C++ and lets the second pass through.
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

namespace Pelnar::Foundation
{

/// Runs \a call. If it raises an NSException, returns the exception's reason in UTF-8, empty for a nil or empty reason.
/// If it returns, the result has no value. C++ exceptions propagate unchanged.
[[nodiscard]] std::optional<std::string> ReasonRaisedBy(std::function<void()> const& call);

/// A raised NSException for C++ callers; what() is its reason.
class RaisedException : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Runs \a call and throws RaisedException if it raises an NSException, so that a C++ catch-all can hold it, rethrow it
/// and read its diagnostic text. C++ exceptions propagate unchanged.
void CallTranslatingRaised(std::function<void()> const& call);

} // namespace Pelnar::Foundation
