// DemoBundle.h: the bundle that a demo host runs from, if there is one. Plain C++.
// Thread: main.
#pragma once

#include "HostFramework/Reference/ReferenceCustomizationManager.h"

#include <optional>

namespace Pelnar::Demo
{

/// True if the program's file is in a bundle. Does not use Foundation, so that its defaults can still be moved.
[[nodiscard]] bool RunsFromBundle();

/// Name and version of the running bundle, from its information file; empty without a bundle. Throws std::runtime_error
/// if the file has no version.
std::optional<App::Customization> ReadBundle();

} // namespace Pelnar::Demo
