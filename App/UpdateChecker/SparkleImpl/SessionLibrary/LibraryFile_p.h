// LibraryFile_p.h: checks that a shared library and the libraries that it needs from its own folder are whole files.
// Linux only.
#pragma once

#include <optional>
#include <string>

namespace Pelnar::App
{

/// What is wrong with the library at \a path, or with a library that it needs from the same folder: it cannot be read,
/// is not a library for this kind of machine, or is truncated. Empty if the loader may load them. Needed libraries in
/// other folders are not checked.
[[nodiscard]] std::optional<std::string> FaultOfLibrary(std::string const& path);

} // namespace Pelnar::App
