// ZipStructure.h: whether a zip archive can be read in one way only. Pure: it looks at bytes and decides.
// Thread: any; no state. Ownership: the bytes stay the caller's.
// What it lets pass has one end record, at the very end; a central directory right before it; and local entries that
// fill everything before that, without gap or overlap, each telling the same as its central record.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"
#include "Engine/core/payload/UpdateFault.h"

namespace Pelnar::Engine
{

/// None, ContainerDamaged, ContainerAmbiguous, ContainerEncrypted, ContainerMethodUnknown, EntryTypeRefused or
/// EntryNameInvalid (a NUL or a backslash).
[[nodiscard]] UpdateFault CheckZipStructure(Bytes archive);

} // namespace Pelnar::Engine
