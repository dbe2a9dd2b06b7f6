// WorkCrew.h: does many pieces of work with all processors. Thread: one caller at a time. The call starts its own
// threads and ends them before it returns; callbacks run in the calling thread.
#pragma once

#include <cstddef>
#include <functional>

namespace Pelnar::Engine
{

/// Calls \a work with each number below \a count, lowest first. Calls \a told in the calling thread, once for each
/// completed piece and soon after it. If a piece throws, the exception is thrown after all threads have ended. If the
/// system can create no thread, the calling one does the work.
void DoAll(std::size_t count, std::function<void(std::size_t)> const& work, std::function<void()> const& told = {});

} // namespace Pelnar::Engine
