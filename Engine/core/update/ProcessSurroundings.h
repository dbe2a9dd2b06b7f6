// ProcessSurroundings.h: properties that a program started by this process would inherit. The helper sets them later.
#pragma once

#include <cstdint>
#include <string>

namespace Pelnar::Engine
{

/// Absolute; empty if the folder no longer exists.
std::string WorkingFolder();
/// The umask, read without changing it: other threads may be creating files.
std::uint64_t CreationMask();

} // namespace Pelnar::Engine
