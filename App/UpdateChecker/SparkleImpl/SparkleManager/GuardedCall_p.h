// GuardedCall_p.h: the session's only catch-all. Plain C++, private to the session.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace Pelnar::App::Session
{

/// Runs \a call and catches its exception. Returns the exception's diagnostic text, or nothing if the call returns.
[[nodiscard]] std::optional<std::string> DiagnosticOf(std::function<void()> const& call);

} // namespace Pelnar::App::Session
