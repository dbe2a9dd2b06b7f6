// ProcessSurroundings.h: what this process would pass on to a program that it starts, for the helper to do it later.
// Thread: any. Ownership: values only.
#pragma once

#include <cstdint>
#include <string>

namespace Pelnar::Engine
{

/// Absolute; empty when there is none any more.
std::string WorkingFolder();
/// The umask, read without changing it: other threads may be making files.
std::uint64_t CreationMask();

} // namespace Pelnar::Engine
