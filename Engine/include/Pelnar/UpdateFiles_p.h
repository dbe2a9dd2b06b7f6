// UpdateFiles_p.h: how the names of all files begin that an update makes beside a bundle.
// Thread: any. Ownership: none. Not for hosts.
#pragma once

#include <string_view>

namespace Pelnar::Engine
{

inline constexpr std::string_view UPDATE_FILES_BEGIN = ".pelnar-";
/// Things of others that stood in an update's way begin like this. They belong to no update.
inline constexpr std::string_view ASIDE_FILES_BEGIN = ".pelnar-aside-";

} // namespace Pelnar::Engine
