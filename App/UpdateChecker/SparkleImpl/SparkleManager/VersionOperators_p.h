// VersionOperators_p.h: how versions are compared: their components, absent ones read as 0. Plain C++, private to the
// updater; the back end lends these two to the session. Thread: any; no state.
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
