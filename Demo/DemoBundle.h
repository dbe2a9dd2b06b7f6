// DemoBundle.h: the bundle that a demo host runs from, if it runs from one. Plain C++.
// Thread: main. Ownership: values only.
#pragma once

#include "HostFramework/Reference/ReferenceCustomizationManager.h"

#include <optional>

namespace Pelnar::Demo
{

/// Whether the program's file lies in a bundle. Does not use Foundation, so that its defaults can still be moved.
[[nodiscard]] bool RunsFromBundle();

/// Name and version of the running bundle, from its information file; nothing when there is no bundle. Throws
/// std::runtime_error when the file gives no version.
std::optional<App::Customization> ReadBundle();

} // namespace Pelnar::Demo
