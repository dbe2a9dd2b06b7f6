// VersionOperators.h: compares versions by their components, with absent ones as 0. Plain C++, private to the
// updater; the back end lends these two functions to the session. Pure functions.
#pragma once

#include "HostFramework/Version.h"

namespace Pelnar::App::Session
{

[[nodiscard]] constexpr bool IsOlderVersion(Core::Version const& a, Core::Version const& b)
{
    return Core::Util::ShrinkVersion(a, Core::Version::COMPONENT_COUNT) <
           Core::Util::ShrinkVersion(b, Core::Version::COMPONENT_COUNT);
}

[[nodiscard]] constexpr bool IsSameVersion(Core::Version const& a, Core::Version const& b)
{
    return Core::Util::ShrinkVersion(a, Core::Version::COMPONENT_COUNT) ==
           Core::Util::ShrinkVersion(b, Core::Version::COMPONENT_COUNT);
}

} // namespace Pelnar::App::Session
