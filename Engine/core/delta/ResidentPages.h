// ResidentPages.h: limits how much of mapped files is in memory. If more than a few MiB of them were read, all their
// pages are given back. The system maps pages again when they are read again.
// Thread: one at a time. Ownership: refers to the mappings, which outlive it.
#pragma once

#include "Engine/core/base/Bytes.h"

#include <cstddef>
#include <vector>

namespace Pelnar::Engine
{

class ResidentPages
{
public:
    /// Without mappings it does nothing.
    ResidentPages() = default;
    /// REQUIRES: each of \a mappings is a whole mapping of a file, whose bytes are only read.
    explicit ResidentPages(std::vector<Bytes> mappings);

    /// Call it before \a size bytes from \a begin of a mapping are read.
    void Touch(std::size_t mapping, std::size_t begin, std::size_t size)
    {
        if (m_isLimited && (mapping != m_last || begin < m_lastBegin || begin + size > m_lastEnd))
        {
            TouchOthers(mapping, begin, size);
        }
    }

private:
    [[gnu::cold]] void TouchOthers(std::size_t mapping, std::size_t begin, std::size_t size);
    void GiveBack();

    std::vector<Bytes> m_mappings;
    bool m_isLimited = false;
    std::vector<std::size_t> m_firstBlocks; ///< of each mapping
    std::vector<bool> m_isTouched;          ///< of each block
    std::vector<std::size_t> m_touched;     ///< numbers of mappings with touched blocks
    std::size_t m_touchedBytes = 0;
    // The last touched blocks.
    std::size_t m_last = 0;
    std::size_t m_lastBegin = 0;
    std::size_t m_lastEnd = 0;
};

/// Read longer runs in parts of this size, and touch each of them.
constexpr std::size_t RESIDENT_PART_BYTES = std::size_t{1} << 20;

} // namespace Pelnar::Engine
