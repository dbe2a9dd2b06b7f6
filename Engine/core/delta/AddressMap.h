// AddressMap.h: maps addresses of an old program to the new one, by the steps of the patch between them.
// Thread: any, after its constructor.
#pragma once

#include "Engine/core/delta/ImageLayout.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Pelnar::Engine
{

/// More steps than the patch of a real program has. Their map takes 20 MiB.
constexpr std::size_t MAX_MAPPED_STEPS = 1u << 19;

class AddressMap
{
public:
    /// \a steps begin at the old file's start and make the new file, whose segments are \a newSpans.
    AddressMap(ImageLayout const& oldLayout, std::vector<ImageSpan> const& newSpans,
               std::vector<PatchStep> const& steps);

    /// The new address of what was at \a address. It moves with the longest run of bytes that contains it, or else with
    /// the run before it. REQUIRES: an address within the old image.
    std::uint64_t Find(std::uint64_t address) const;
    /// True if all addresses on the page of \a address move by \a shift, which is not MIXED_SHIFT. An address outside
    /// the old image gives any answer.
    bool MovesWithPage(std::uint64_t address, std::uint32_t shift) const
    {
        std::size_t const page = static_cast<std::uint32_t>(address - m_lowest) >> m_pageBits;
        return m_pageShifts[std::min(page, m_pageShifts.size() - 1)] == shift;
    }
    /// True if more than half of all pages move by \a shift.
    bool IsUsual(std::uint32_t shift) const { return shift == m_usualShift && shift != MIXED_SHIFT; }
    struct Range
    {
        std::uint64_t begin;
        std::uint64_t end;
    };
    /// A range with all addresses that do not move by \a shift; empty if there are none.
    Range MovingOtherwise(std::uint32_t shift) const
    {
        std::size_t const first = m_points.front().shift == shift ? 1 : 0;
        if (first == m_points.size())
        {
            return {m_lowest, m_lowest};
        }
        std::uint64_t const end = m_points.back().shift == shift ? m_points.back().begin : std::uint64_t(1) << 32;
        return {m_lowest + m_points[first].begin, m_lowest + end};
    }
    /// The shift of a page whose addresses move differently. It is larger than an image.
    static constexpr std::uint32_t MIXED_SHIFT = 0x80000000;
    /// True if every address stays as it is.
    bool IsUnchanged() const { return m_points.size() == 1 && m_points.front().shift == 0; }

private:
    struct Run
    {
        std::uint32_t begin; ///< counted from the old image's lowest address
        std::uint32_t end;
        std::uint32_t shift; ///< the new address minus the old one, modulo 2^32
    };
    struct Point
    {
        std::uint32_t begin;
        std::uint32_t shift; ///< from here on
    };

    // Small pages are more often of one shift, but those of a large program take more memory.
    static constexpr unsigned SMALL_PAGE_BITS = 9;
    static constexpr unsigned LARGE_PAGE_BITS = 12;
    static constexpr std::uint64_t LARGE_IMAGE_BYTES = std::uint64_t(16) << 20;
    struct Page
    {
        std::uint32_t firstPoint; ///< after its begin
        std::uint32_t shift;      ///< at its begin
    };

    std::vector<Run> RunsOf(ImageLayout const& oldLayout, std::vector<ImageSpan> const& newSpans,
                            std::vector<PatchStep> const& steps) const;
    void TakeRuns(std::vector<Run> const& runs);
    void MakeIndex();
    void FindUsualShift(std::uint64_t imageBytes);

    std::uint64_t m_lowest;
    unsigned m_pageBits;
    std::vector<Point> m_points;             ///< in ascending order; the first is at 0
    std::vector<Page> m_pages;               ///< up to the page of the last point, and one more
    std::vector<std::uint32_t> m_pageShifts; ///< of m_pages
    std::uint32_t m_usualShift = MIXED_SHIFT;
};

inline std::uint64_t AddressMap::Find(std::uint64_t address) const
{
    auto const wanted = static_cast<std::uint32_t>(address - m_lowest);
    std::size_t const page = std::min<std::size_t>(wanted >> m_pageBits, m_pages.size() - 1);
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
