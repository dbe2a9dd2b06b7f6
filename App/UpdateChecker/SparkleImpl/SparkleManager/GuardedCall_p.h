// GuardedCall_p.h: the session's one catch-all. Plain C++, private to the session. Thread: any.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace Pelnar::App::Session
{

/// Runs \a call and holds back what it throws or raises: the diagnostic text of that, or nothing when it returns.
[[nodiscard]] std::optional<std::string> DiagnosticOf(std::function<void()> const& call);

} // namespace Pelnar::App::Session
