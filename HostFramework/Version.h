// Version.h: the version value of the host framework, the updater and the session.
//
//     constexpr Pelnar::Core::Version installed(5, 9);
//     constexpr Pelnar::Core::Version published(5, 10);
//     static_assert(installed < published);
//     static_assert(Pelnar::Core::Util::ShrinkVersion(installed, 3) == Pelnar::Core::Version(5, 9, 0));
//
// The interface is part of a host framework.
#pragma once

#include <array>
#include <cstdint>

namespace Pelnar::Core
{

/// Four signed 32-bit components, most significant first; -1 marks an absent component. The default value has no
/// component and is the invalid version.
class Version
{
public:
    static constexpr int COMPONENT_COUNT = 4;
    static constexpr std::int32_t ABSENT = -1;

    constexpr Version() = default;
    /// Takes each number unchanged; see IsValid().
    explicit constexpr Version(std::int32_t majorNumber, std::int32_t minorNumber = ABSENT,
                               std::int32_t patchNumber = ABSENT, std::int32_t buildNumber = ABSENT)
        : m_components{majorNumber, minorNumber, patchNumber, buildNumber}
    {
    }

    // Each component, ABSENT if the version does not have it.
    constexpr std::int32_t Major() const { return m_components[0]; }
    constexpr std::int32_t Minor() const { return m_components[1]; }
    constexpr std::int32_t Patch() const { return m_components[2]; }
    constexpr std::int32_t Build() const { return m_components[3]; }

    /// All four components, including absent ones.
    constexpr std::array<std::int32_t, COMPONENT_COUNT> const& Components() const { return m_components; }

    /// True if the first component is not -1 and no other component is below -1. Deliberate: absent components after
    /// the first, at any position, leave a version valid, and so does a first component below -1.
    constexpr bool IsValid() const
    {
        return m_components[0] != ABSENT && m_components[1] >= ABSENT && m_components[2] >= ABSENT &&
               m_components[3] >= ABSENT;
    }

private:
    std::array<std::int32_t, COMPONENT_COUNT> m_components{ABSENT, ABSENT, ABSENT, ABSENT};
};

/// The comparisons use the raw components, first to last: 5.1 is less than 5.1.0. To compare versions of different
/// lengths, call ShrinkVersion first.
constexpr bool operator<(Version const& a, Version const& b)
{
    for (int i = 0; i < Version::COMPONENT_COUNT; ++i)
    {
        if (a.Components()[i] != b.Components()[i])
        {
            return a.Components()[i] < b.Components()[i];
        }
    }
    return false;
}
constexpr bool operator==(Version const& a, Version const& b)
{
    return a.Components()[0] == b.Components()[0] && a.Components()[1] == b.Components()[1] &&
           a.Components()[2] == b.Components()[2] && a.Components()[3] == b.Components()[3];
}
constexpr bool operator!=(Version const& a, Version const& b) { return !(a == b); }
constexpr bool operator>(Version const& a, Version const& b) { return b < a; }
constexpr bool operator<=(Version const& a, Version const& b) { return !(b < a); }
constexpr bool operator>=(Version const& a, Version const& b) { return !(a < b); }

namespace Util
{

/// Returns the first \a componentCount components of \a version (1 to 4). Absent ones become 0, and the remaining
/// components become absent. An invalid version stays unchanged. 5.1 and 5.1.0 are equal after both are shrunk to four
/// components.
constexpr Version ShrinkVersion(Version const& version, int componentCount)
{
    if (!version.IsValid())
    {
        return version;
    }
    std::array<std::int32_t, Version::COMPONENT_COUNT> shrunk{Version::ABSENT, Version::ABSENT, Version::ABSENT,
                                                              Version::ABSENT};
    for (int i = 0; i < Version::COMPONENT_COUNT && i < componentCount; ++i)
    {
        shrunk[i] = version.Components()[i] == Version::ABSENT ? 0 : version.Components()[i];
    }
    return Version(shrunk[0], shrunk[1], shrunk[2], shrunk[3]);
}

} // namespace Util
} // namespace Pelnar::Core
