// AddressReach.h: how near an address lies. A feed from the network must not make this computer talk to itself or to
// its own link, under any name or notation: so the address that a connection is made to is judged, not its name.
// Thread: any; no state. Ownership: values only.
#pragma once

#include <QHostAddress>
#include <QUrl>

namespace Pelnar::Engine
{

/// From far to near: what came from one place may lead to places that are as far or farther.
enum class AddressReach
{
    Network,
    Link,         ///< this computer's own link: no router passes it on
    ThisComputer, ///< loopback, and every address of an interface of this computer
};

/// Of an address that a connection is made to. IPv4 addresses inside IPv6 ones count as what they are. The interfaces
/// of this computer are asked.
[[nodiscard]] AddressReach ReachOf(QHostAddress const& address);

/// Of the host as \a url spells it, where that can be told without asking for its address; Network for other names.
[[nodiscard]] AddressReach ReachOf(QUrl const& url);

} // namespace Pelnar::Engine
