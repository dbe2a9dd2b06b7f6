// AddressReach.h: how near an address is. A feed from the network must not make this computer connect to itself or to
// its own link, under any name or notation. So the address of the connection is judged, not its name.
#pragma once

#include <QUrl>

#include <array>
#include <cstdint>
#include <optional>

struct sockaddr;

namespace Pelnar::Engine
{

/// From far to near: content from one place may lead to places at the same distance or farther.
enum class AddressReach
{
    Network,
    Link,         ///< this computer's own link, which no router forwards
    ThisComputer, ///< loopback, and every address of an interface of this computer
};

/// A numeric address. An IPv4 address is stored as its mapped IPv6 address.
using NumericAddress = std::array<std::uint8_t, 16>;

/// The address that \a host is, without its zone; empty for a name.
[[nodiscard]] std::optional<NumericAddress> NumericAddressOf(QString const& host);
/// Empty for an address of another family.
[[nodiscard]] std::optional<NumericAddress> NumericAddressOf(sockaddr const& address);
/// The IPv4 address that \a address stores; empty for an IPv6 address.
[[nodiscard]] std::optional<std::uint32_t> IPv4Of(NumericAddress const& address);

/// The reach of an address to connect to. IPv4 addresses inside IPv6 addresses count as IPv4 addresses. The function
/// reads the interfaces of this computer.
[[nodiscard]] AddressReach ReachOf(NumericAddress const& address);

/// The reach of \a url's host, if its text alone shows it; Network for other names. It resolves no name.
[[nodiscard]] AddressReach ReachOf(QUrl const& url);

/// True for the host "localhost" and for loopback addresses.
[[nodiscard]] bool IsLoopback(QUrl const& url);

} // namespace Pelnar::Engine
