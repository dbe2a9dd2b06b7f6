// ZipStructure.h: checks that a zip archive can be read in only one way. Pure functions of bytes. Ownership: the caller
// owns the bytes. An accepted archive has one end record, at the very end, and a central directory right before it. The
// local entries fill everything before that, without gap or overlap, and each agrees with its central record. The names
// are bytes: neither the flag for UTF-8 nor the user's locale changes them.
#pragma once

#include "Engine/core/base/Bytes.h"
#include "Engine/core/faults/UpdateFault.h"

#include <string>
#include <vector>

namespace Pelnar::Engine
{

struct ZipContents
{
    /// None, ContainerDamaged, ContainerAmbiguous, ContainerEncrypted, ContainerMethodUnknown, EntryTypeRefused,
    /// EntryNameInvalid (a NUL or a backslash) or TooManyEntries.
    UpdateFault fault = UpdateFault::None;
    /// Names of the entries, as in the archive, in the order of their data. Empty if there is a fault.
    std::vector<std::string> names;
    std::string refusedName; ///< of the entry with the fault; empty if no single entry has it
};

[[nodiscard]] ZipContents ReadZipStructure(Bytes archive);

} // namespace Pelnar::Engine
