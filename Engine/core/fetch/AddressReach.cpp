#include "Engine/core/fetch/AddressReach.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <netinet/in.h>

namespace Pelnar::Engine
{
namespace
{

struct Subnet
{
    std::uint32_t address;
    int bits;
    AddressReach reach;
};

constexpr std::array IPV4_SUBNETS = {
    Subnet{0x00000000, 8, AddressReach::ThisComputer}, // 0.0.0.0/8: connecting to 0.0.0.0 reaches this computer
    Subnet{0x7f000000, 8, AddressReach::ThisComputer}, // 127.0.0.0/8
    Subnet{0xa9fe0000, 16, AddressReach::Link},        // 169.254.0.0/16
    Subnet{0xe0000000, 4, AddressReach::Link},         // 224.0.0.0/4: multicast, never a server
    Subnet{0xffffffff, 32, AddressReach::Link},
};

AddressReach ReachOfIPv4(std::uint32_t address)
{
    auto const isInside = [address](Subnet const& subnet)
    { return (address ^ subnet.address) >> (32 - subnet.bits) == 0; };
    auto const found = std::find_if(IPV4_SUBNETS.begin(), IPV4_SUBNETS.end(), isInside);
    return found == IPV4_SUBNETS.end() ? AddressReach::Network : found->reach;
}

std::uint32_t IPv4At(NumericAddress const& address, std::size_t start)
{
    return std::uint32_t{address[start]} << 24 | std::uint32_t{address[start + 1]} << 16 |
           std::uint32_t{address[start + 2]} << 8 | std::uint32_t{address[start + 3]};
}

bool Has(NumericAddress const& address, std::size_t position, std::initializer_list<std::uint8_t> bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [&](std::uint8_t byte) { return address[position++] == byte; });
}

NumericAddress Mapped(in_addr const& address)
{
    NumericAddress mapped{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xff, 0xff};
    std::memcpy(&mapped[12], &address, sizeof address);
    return mapped;
}

/// The IPv4 address that \a address contains: mapped, compatible, translated or tunnelled.
std::optional<std::uint32_t> EmbeddedIPv4(NumericAddress const& address)
{
    if (std::optional<std::uint32_t> const mapped = IPv4Of(address))
    {
        return mapped;
    }
    bool const isCompatible = Has(address, 0, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    bool const isTranslated = Has(address, 0, {0, 0x64, 0xff, 0x9b, 0, 0, 0, 0, 0, 0, 0, 0}) ||
                              Has(address, 0, {0, 0x64, 0xff, 0x9b, 0, 1}) ||
                              Has(address, 0, {0, 0, 0, 0, 0, 0, 0, 0, 0xff, 0xff, 0, 0});
    bool const isInOneSite = Has(address, 8, {0, 0, 0x5e, 0xfe}) || Has(address, 8, {2, 0, 0x5e, 0xfe});
    if (isCompatible || isTranslated || isInOneSite)
    {
        return IPv4At(address, 12);
    }
    bool const isThroughTranslators = Has(address, 0, {0x20, 0x01, 0, 0});
    if (isThroughTranslators)
    {
        return ~IPv4At(address, 12); // stored inverted, because some routers rewrite visible addresses
    }
    return Has(address, 0, {0x20, 0x02}) ? std::optional(IPv4At(address, 2)) : std::nullopt;
}

AddressReach ReachByNumber(NumericAddress const& address)
{
    if (std::optional<std::uint32_t> const embedded = EmbeddedIPv4(address))
    {
        return ReachOfIPv4(*embedded); // :: and ::1 are 0.0.0.0 and 0.0.0.1
    }
    bool const isLinkLocal = address[0] == 0xfe && (address[1] & 0xc0) == 0x80;
    bool const isMulticast = address[0] == 0xff;
    return isLinkLocal || isMulticast ? AddressReach::Link : AddressReach::Network;
}

bool IsOfAnInterface(NumericAddress const& address)
{
    ifaddrs* all = nullptr;
    if (getifaddrs(&all) != 0)
    {
        return false;
    }
    std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> const owned(all, &freeifaddrs);
    for (ifaddrs const* entry = all; entry; entry = entry->ifa_next)
    {
        if (entry->ifa_addr && NumericAddressOf(*entry->ifa_addr) == address)
        {
            return true;
        }
    }
    return false;
}

} // namespace

std::optional<NumericAddress> NumericAddressOf(QString const& host)
{
    QByteArray const text = host.section(QLatin1Char('%'), 0, 0).toLatin1();
    in_addr ipv4{};
    if (inet_pton(AF_INET, text.constData(), &ipv4) == 1)
    {
        return Mapped(ipv4);
    }
    NumericAddress ipv6;
    return inet_pton(AF_INET6, text.constData(), ipv6.data()) == 1 ? std::optional(ipv6) : std::nullopt;
}

std::optional<NumericAddress> NumericAddressOf(sockaddr const& address)
{
    switch (address.sa_family)
    {
    case AF_INET:
        return Mapped(reinterpret_cast<sockaddr_in const&>(address).sin_addr);
    case AF_INET6:
    {
        NumericAddress ipv6;
        std::memcpy(ipv6.data(), &reinterpret_cast<sockaddr_in6 const&>(address).sin6_addr, ipv6.size());
        return ipv6;
    }
    }
    return std::nullopt;
}

std::optional<std::uint32_t> IPv4Of(NumericAddress const& address)
{
    bool const isMapped = Has(address, 0, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xff, 0xff});
    return isMapped ? std::optional(IPv4At(address, 12)) : std::nullopt;
}

AddressReach ReachOf(NumericAddress const& address)
{
    AddressReach const reach = ReachByNumber(address);
    return reach != AddressReach::ThisComputer && IsOfAnInterface(address) ? AddressReach::ThisComputer : reach;
}

AddressReach ReachOf(QUrl const& url)
{
    QString host = url.host();
    while (host.endsWith(QLatin1Char('.')))
    {
        host.chop(1);
    }
    if (host == QLatin1String("localhost") || host.endsWith(QLatin1String(".localhost")))
    {
        return AddressReach::ThisComputer;
    }
    std::optional<NumericAddress> const address = NumericAddressOf(host);
    return address ? ReachByNumber(*address) : AddressReach::Network;
}

bool IsLoopback(QUrl const& url)
{
    QString const host = url.host();
    std::optional<NumericAddress> const address = NumericAddressOf(host);
    constexpr NumericAddress IPV6_LOOPBACK{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
    return host == QLatin1String("localhost") ||
           (address && (address == IPV6_LOOPBACK || IPv4Of(*address).value_or(0) >> 24 == 127));
}

} // namespace Pelnar::Engine
