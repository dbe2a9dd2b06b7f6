// PayloadKind.h: what an update's archive brings.
#pragma once

#include <cstdint>

namespace Pelnar::Engine
{

enum class PayloadKind : std::uint8_t
{
    WholeBundle = 0,
    Delta = 1,
    Installer = 2, ///< a bundle whose program installs the new version; only for a host that allows such programs
};

} // namespace Pelnar::Engine
