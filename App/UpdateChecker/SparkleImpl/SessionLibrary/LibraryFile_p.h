// LibraryFile_p.h: whether a shared library and what it needs from its own folder are whole files.
// Thread: any. Ownership: none. Linux only.
#pragma once

#include <optional>
#include <string>

namespace Pelnar::App
{

/// What is wrong with the library at \a path, or with a library of the same folder that it needs: one that cannot be
/// read, is no library of this kind of machine, or was cut short. Nothing when the loader may have them. A library that
/// it needs and that stands elsewhere is not looked at.
[[nodiscard]] std::optional<std::string> FaultOfLibrary(std::string const& path);

} // namespace Pelnar::App
