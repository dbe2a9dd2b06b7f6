// UpdateTraces_p.h: whether an update may have left something beside the running bundle, told without the engine.
// Thread: any. Ownership: none. Linux only.
#pragma once

namespace Pelnar::App
{

/// False when the folder that holds the running program's bundle holds no file of an update, of this bundle or of
/// another one; also true when that cannot be told.
[[nodiscard]] bool MayHaveUpdateFiles();

} // namespace Pelnar::App
