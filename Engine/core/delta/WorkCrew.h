// WorkCrew.h: does many pieces of work with all processors.
// Thread: one caller at a time; the work is done in threads of the call, which have ended when it returns, and is told
// of in the caller's.
#pragma once

#include <cstddef>
#include <functional>

namespace Pelnar::Engine
{

/// Calls \a work with each number below \a count, of which it starts the lowest first, and \a told once for each that
/// is done, soon after it, in the calling thread. An exception of any is thrown once the others have ended. If the
/// system has no further thread, the calling one does the work.
void DoAll(std::size_t count, std::function<void(std::size_t)> const& work, std::function<void()> const& told = {});

} // namespace Pelnar::Engine
