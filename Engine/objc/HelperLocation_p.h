// HelperLocation_p.h: where the installer's helper stands: at a fixed place relative to the engine's library, in the
// build tree as in an installation. Plain C++. Thread: any. Ownership: values only.
#pragma once

#include <QString>

namespace Pelnar::Engine
{

/// Absolute; empty when the library does not know its own place.
QString HelperProgram();

} // namespace Pelnar::Engine
