// AddressReach.h: how near an address is. A feed from the network must not make this computer connect to itself or to
// its own link, under any name or notation. So the address of the connection is judged, not its name.
// Thread: any; no state.
#pragma once

#include <QHostAddress>
#include <QUrl>

namespace Pelnar::Engine
{

/// From far to near: content from one place may lead to places at the same distance or farther.
enum class AddressReach
{
    Network,
    Link,         ///< this computer's own link, which no router forwards
    ThisComputer, ///< loopback, and every address of an interface of this computer
};

/// The reach of an address to connect to. IPv4 addresses inside IPv6 addresses count as IPv4 addresses. The function
/// reads the interfaces of this computer.
[[nodiscard]] AddressReach ReachOf(QHostAddress const& address);

/// The reach of \a url's host, if its text alone shows it; Network for other names. It resolves no name.
[[nodiscard]] AddressReach ReachOf(QUrl const& url);

} // namespace Pelnar::Engine
