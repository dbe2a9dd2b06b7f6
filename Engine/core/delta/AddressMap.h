// AddressMap.h: where the places of an old program have gone in the new one, by the steps of the patch between them.
// Thread: any once built.
#pragma once

#include "Engine/core/delta/ImageLayout.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Pelnar::Engine
{

/// More steps than a program's patch has; their map takes 20 MiB.
constexpr std::size_t MAX_MAPPED_STEPS = 1u << 19;

class AddressMap
{
public:
    /// \a steps begin at the old file's start and make the new file, whose segments are \a newSpans.
    AddressMap(ImageLayout const& oldLayout, std::vector<ImageSpan> const& newSpans,
               std::vector<PatchStep> const& steps);

    /// The new address of what had \a address: where the longest run of bytes that holds it has gone; between runs, as
    /// far as behind the run before it. REQUIRES: an address within the old image.
    std::uint64_t Find(std::uint64_t address) const;
    /// True when every place has the address that it had.
    bool IsUnchanged() const { return m_points.size() == 1 && m_points.front().shift == 0; }

private:
    struct Run
    {
        std::uint32_t begin; ///< in the old image, from its lowest address on
        std::uint32_t end;
        std::uint32_t shift; ///< how much further it stands in the new one, without carry
    };
    struct Point
    {
        std::uint32_t begin;
        std::uint32_t shift; ///< from here on
    };

    static constexpr unsigned PAGE_BITS = 12;
    struct Page
    {
        std::uint32_t firstPoint; ///< behind its begin
        std::uint32_t shift;      ///< at its begin
    };

    std::vector<Run> RunsOf(ImageLayout const& oldLayout, std::vector<ImageSpan> const& newSpans,
                            std::vector<PatchStep> const& steps) const;
    void TakeRuns(std::vector<Run> const& runs);
    void MakeIndex();

    std::uint64_t m_lowest;
    std::vector<Point> m_points; ///< in ascending order; the first stands at 0
    std::vector<Page> m_pages;   ///< of the image as far as there are points, and one more
};

inline std::uint64_t AddressMap::Find(std::uint64_t address) const
{
    auto const wanted = static_cast<std::uint32_t>(address - m_lowest);
    std::size_t const page = std::min<std::size_t>(wanted >> PAGE_BITS, m_pages.size() - 1);
    std::size_t const begin = m_pages[page].firstPoint;
    std::size_t const end = page + 1 < m_pages.size() ? m_pages[page + 1].firstPoint : m_points.size();
    std::uint32_t shift = m_pages[page].shift;
    if (begin < end && m_points[begin].begin <= wanted)
    {
        auto const behind = std::upper_bound(
            m_points.begin() + static_cast<std::ptrdiff_t>(begin), m_points.begin() + static_cast<std::ptrdiff_t>(end),
            wanted, [](std::uint32_t value, Point const& point) { return value < point.begin; });
        shift = (behind - 1)->shift;
    }
    return address + static_cast<std::uint64_t>(static_cast<std::int32_t>(shift));
}

} // namespace Pelnar::Engine
