// UpdateFiles.h: the start of the names of all files that an update creates next to a bundle. Constants.
#pragma once

#include <string_view>

namespace Pelnar::Engine
{

inline constexpr std::string_view UPDATE_FILES_BEGIN = ".pelnar-";
/// The start of the names of other users' objects that were renamed because they were in the way. They belong to no
/// update.
inline constexpr std::string_view ASIDE_FILES_BEGIN = ".pelnar-aside-";

} // namespace Pelnar::Engine
