#include "Engine/core/delta/AddressMap.h"

#include <algorithm>
#include <queue>

namespace Pelnar::Engine
{
AddressMap::AddressMap(ImageLayout const& oldLayout, std::vector<ImageSpan> const& newSpans,
                       std::vector<PatchStep> const& steps)
    : m_lowest(oldLayout.lowest)
    , m_pageBits(oldLayout.end - oldLayout.lowest < LARGE_IMAGE_BYTES ? SMALL_PAGE_BITS : LARGE_PAGE_BITS)
{
    TakeRuns(RunsOf(oldLayout, newSpans, steps));
    MakeIndex();
    FindUsualShift(oldLayout.end - oldLayout.lowest);
}

std::vector<AddressMap::Run> AddressMap::RunsOf(ImageLayout const& oldLayout, std::vector<ImageSpan> const& newSpans,
                                                std::vector<PatchStep> const& steps) const
{
    std::vector<Run> runs;
    runs.reserve(steps.size() + 2 * newSpans.size());
    auto const add = [&](std::uint64_t oldAddress, std::uint64_t newAddress, std::uint64_t size)
    {
        auto const begin = static_cast<std::uint32_t>(oldAddress - m_lowest);
        runs.push_back({begin, static_cast<std::uint32_t>(begin + std::min<std::uint64_t>(size, ~begin)),
                        static_cast<std::uint32_t>(newAddress - oldAddress)});
    };
    // Bytes that are only in memory move with the end of their segment.
    for (std::size_t i = 0; i < std::min(newSpans.size(), oldLayout.spans.size()); ++i)
    {
        ImageSpan const& from = oldLayout.spans[i];
        add(from.address + from.size, newSpans[i].address + newSpans[i].size, 1);
    }
    std::uint64_t oldPosition = 0;
    std::uint64_t newPosition = 0;
    for (PatchStep const& step : steps)
    {
        // A run over several segments counts as one run for each.
        for (ImageSpan const& span : oldLayout.spans)
        {
            std::uint64_t const begin = std::max<std::uint64_t>(span.offset, oldPosition);
            std::uint64_t const end =
                std::min<std::uint64_t>(span.offset + std::uint64_t(span.size), oldPosition + step.likeBytes);
            std::optional<std::uint64_t> const newAddress =
                begin < end ? AddressAt(newSpans, newPosition + (begin - oldPosition)) : std::nullopt;
            if (newAddress)
            {
                add(span.address + (begin - span.offset), *newAddress, end - begin);
            }
        }
        newPosition += step.likeBytes + step.extraBytes;
        oldPosition = MovedBy(oldPosition + step.likeBytes, step.move);
    }
    return runs;
}

/// Where runs overlap, the longest counts.
void AddressMap::TakeRuns(std::vector<Run> const& runs)
{
    std::vector<std::uint32_t> order(runs.size());
    for (std::size_t i = 0; i < order.size(); ++i)
    {
        order[i] = static_cast<std::uint32_t>(i);
    }
    std::stable_sort(order.begin(), order.end(),
                     [&runs](std::uint32_t a, std::uint32_t b) { return runs[a].begin < runs[b].begin; });
    auto const isLess = [&runs](std::uint32_t a, std::uint32_t b)
    {
        std::uint32_t const lengthOfA = runs[a].end - runs[a].begin;
        std::uint32_t const lengthOfB = runs[b].end - runs[b].begin;
        return lengthOfA != lengthOfB ? lengthOfA < lengthOfB : a > b;
    };
    std::priority_queue<std::uint32_t, std::vector<std::uint32_t>, decltype(isLess)> active(isLess);
    auto const take = [this](std::uint32_t begin, std::uint32_t shift)
    {
        if (!m_points.empty() && m_points.back().begin == begin)
        {
            m_points.back().shift = shift;
        }
        else if (m_points.empty() || m_points.back().shift != shift)
        {
            m_points.push_back({begin, shift});
        }
    };
    take(0, order.empty() ? 0 : runs[order.front()].shift);
    std::uint32_t reached = 0; ///< the end of the run that counts last
    for (std::size_t next = 0; next < order.size() || !active.empty();)
    {
        while (!active.empty() && runs[active.top()].end <= reached)
        {
            active.pop();
        }
        bool const isIdle = active.empty();
        if (!isIdle && runs[active.top()].begin <= reached)
        {
            take(reached, runs[active.top()].shift);
        }
        // Nothing changes until another run begins or this one ends.
        if (next < order.size() && (isIdle || runs[order[next]].begin < runs[active.top()].end))
        {
            reached = std::max(reached, runs[order[next]].begin);
            active.push(order[next++]);
            while (next < order.size() && runs[order[next]].begin <= reached)
            {
                active.push(order[next++]);
            }
        }
        else if (!isIdle)
        {
            reached = runs[active.top()].end;
            active.pop();
        }
    }
}

/// If more than half of the pages have one shift, it is left when each page of it is cancelled by a page of another.
void AddressMap::FindUsualShift(std::uint64_t imageBytes)
{
    std::uint64_t const all = std::max<std::uint64_t>(imageBytes >> m_pageBits, m_pageShifts.size());
    std::uint64_t const last = all - m_pageShifts.size() + 1; // the last one stands for all later pages
    auto const pagesOf = [this, last](std::size_t page) { return page + 1 == m_pageShifts.size() ? last : 1; };
    std::uint64_t left = 0;
    for (std::size_t page = 0; page < m_pageShifts.size(); ++page)
    {
        std::uint64_t const pages = pagesOf(page);
        bool const isOther = m_pageShifts[page] != m_usualShift;
        m_usualShift = isOther && pages > left ? m_pageShifts[page] : m_usualShift;
        left = !isOther ? left + pages : pages > left ? pages - left : left - pages;
    }
    std::uint64_t usual = 0;
    for (std::size_t page = 0; page < m_pageShifts.size(); ++page)
    {
        usual += m_pageShifts[page] == m_usualShift ? pagesOf(page) : 0;
    }
    m_usualShift = usual * 2 > all ? m_usualShift : MIXED_SHIFT;
}

void AddressMap::MakeIndex()
{
    std::size_t const pages = (m_points.back().begin >> m_pageBits) + 2;
    m_pages.resize(pages);
    std::size_t point = 0;
    for (std::size_t page = 0; page < pages; ++page)
    {
        while (point < m_points.size() && m_points[point].begin <= page << m_pageBits)
        {
            ++point;
        }
        // The first point is at 0, so every page has a point before it.
        m_pages[page] = {static_cast<std::uint32_t>(point), m_points[point - 1].shift};
    }
    m_pageShifts.resize(pages, MIXED_SHIFT);
    for (std::size_t page = 0; page < pages; ++page)
    {
        std::size_t const end = page + 1 < pages ? m_pages[page + 1].firstPoint : m_points.size();
        // The points behind the page's begin, up to that of the next page.
        m_pageShifts[page] = m_pages[page].firstPoint == end ? m_pages[page].shift : MIXED_SHIFT;
    }
}

} // namespace Pelnar::Engine
