// UpdateTraces_p.h: whether an update may have left files next to the running bundle, found without the engine.
// Linux only.
#pragma once

namespace Pelnar::App
{

/// False if the folder that holds the running program's bundle has no file of an update, of this bundle or another one.
/// Also true if this cannot be read.
[[nodiscard]] bool MayHaveUpdateFiles();

} // namespace Pelnar::App
