// RaisedException.h: the one place where exceptions raised by Foundation code are caught.
// Thread: any. Ownership: values only. C++ and Objective-C++.
// An Objective-C exception can be caught in Objective-C++ only, and a C++ exception in C++ only; with GNUstep a C++
// `catch` in an Objective-C++ file ends the process. This helper carries the first kind over to C++ and lets the second
// pass through.
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

namespace Pelnar::Foundation
{

/// Runs \a call. When it raises an NSException: that exception's reason in UTF-8, empty for a nil or empty reason.
/// Nothing when it returns. C++ exceptions leave here as they are.
[[nodiscard]] std::optional<std::string> ReasonRaisedBy(std::function<void()> const& call);

/// What a raised NSException becomes for C++ callers; what() is its reason.
class RaisedException : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Runs \a call and throws RaisedException when it raises an NSException, so that a C++ catch-all may hold it, rethrow
/// it and ask for its diagnostic text. C++ exceptions leave here as they are.
void CallTranslatingRaised(std::function<void()> const& call);

} // namespace Pelnar::Foundation
