// ZipStructure.h: whether a zip archive can be read in one way only. Pure: it looks at bytes and decides.
// Thread: any; no state. Ownership: the bytes stay the caller's.
// What it lets pass has one end record, at the very end; a central directory right before it; and local entries that
// fill everything before that, without gap or overlap, each telling the same as its central record. The names are
// bytes: neither the flag for UTF-8 nor the user's locale changes them.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"
#include "Engine/core/payload/UpdateFault.h"

#include <string>
#include <vector>

namespace Pelnar::Engine
{

struct ZipContents
{
    /// None, ContainerDamaged, ContainerAmbiguous, ContainerEncrypted, ContainerMethodUnknown, EntryTypeRefused,
    /// EntryNameInvalid (a NUL or a backslash) or TooManyEntries.
    UpdateFault fault = UpdateFault::None;
    /// Of the entries, as they stand in the archive, in the order of their data. Empty when there is a fault.
    std::vector<std::string> names;
    std::string refusedName; ///< of the entry that the fault is about; empty when it is about none alone
};

[[nodiscard]] ZipContents ReadZipStructure(Bytes archive);

} // namespace Pelnar::Engine
