#include "Engine/core/fetch/AddressReach.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>

#include <ifaddrs.h>

namespace Pelnar::Engine
{
namespace
{

struct Subnet
{
    quint32 address;
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

AddressReach ReachOfIPv4(quint32 address)
{
    auto const isInside = [address](Subnet const& subnet)
    { return (address ^ subnet.address) >> (32 - subnet.bits) == 0; };
    auto const found = std::find_if(IPV4_SUBNETS.begin(), IPV4_SUBNETS.end(), isInside);
    return found == IPV4_SUBNETS.end() ? AddressReach::Network : found->reach;
}

quint32 IPv4At(Q_IPV6ADDR const& address, int start)
{
    return quint32{address[start]} << 24 | quint32{address[start + 1]} << 16 | quint32{address[start + 2]} << 8 |
           quint32{address[start + 3]};
}

bool Has(Q_IPV6ADDR const& address, int position, std::initializer_list<quint8> bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [&](quint8 byte) { return address[position++] == byte; });
}

/// The IPv4 address that \a address contains: mapped, compatible, translated or tunnelled.
std::optional<quint32> EmbeddedIPv4(Q_IPV6ADDR const& address)
{
    bool const isMapped = Has(address, 0, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xff, 0xff});
    bool const isCompatible = Has(address, 0, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    bool const isTranslated = Has(address, 0, {0, 0x64, 0xff, 0x9b, 0, 0, 0, 0, 0, 0, 0, 0}) ||
                              Has(address, 0, {0, 0x64, 0xff, 0x9b, 0, 1}) ||
                              Has(address, 0, {0, 0, 0, 0, 0, 0, 0, 0, 0xff, 0xff, 0, 0});
    bool const isInOneSite = Has(address, 8, {0, 0, 0x5e, 0xfe}) || Has(address, 8, {2, 0, 0x5e, 0xfe});
    if (isMapped || isCompatible || isTranslated || isInOneSite)
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

AddressReach ReachOfIPv6(Q_IPV6ADDR const& address)
{
    if (std::optional<quint32> const embedded = EmbeddedIPv4(address))
    {
        return ReachOfIPv4(*embedded); // :: and ::1 are 0.0.0.0 and 0.0.0.1
    }
    bool const isLinkLocal = address[0] == 0xfe && (address[1] & 0xc0) == 0x80;
    bool const isMulticast = address[0] == 0xff;
    return isLinkLocal || isMulticast ? AddressReach::Link : AddressReach::Network;
}

AddressReach ReachByNumber(QHostAddress const& address)
{
    return address.protocol() == QAbstractSocket::IPv4Protocol ? ReachOfIPv4(address.toIPv4Address())
                                                               : ReachOfIPv6(address.toIPv6Address());
}

bool IsOfAnInterface(QHostAddress const& address)
{
    ifaddrs* all = nullptr;
    if (getifaddrs(&all) != 0)
    {
        return false;
    }
    std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> const owned(all, &freeifaddrs);
    for (ifaddrs const* entry = all; entry; entry = entry->ifa_next)
    {
        // Mapped addresses equal their IPv4 addresses.
        if (entry->ifa_addr && QHostAddress(entry->ifa_addr).isEqual(address, QHostAddress::ConvertV4MappedToIPv4))
        {
            return true;
        }
    }
    return false;
}

} // namespace

AddressReach ReachOf(QHostAddress const& address)
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
    QHostAddress const address(host);
    return address.isNull() ? AddressReach::Network : ReachByNumber(address);
}

} // namespace Pelnar::Engine
