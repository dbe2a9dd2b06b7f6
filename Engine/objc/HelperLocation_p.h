// HelperLocation_p.h: the path of the installer's helper: a fixed place relative to the engine's library, in the build
// tree and in an installation. Plain C++.
#pragma once

#include <QString>

namespace Pelnar::Engine
{

/// Absolute; empty if the library cannot find its own path.
QString HelperProgram();

} // namespace Pelnar::Engine
