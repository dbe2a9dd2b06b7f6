#include "Engine/core/delta/ResidentPages.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include <sys/mman.h>

namespace Pelnar::Engine
{
namespace
{

/// The system maps this many bytes around a byte that is read.
constexpr std::size_t BLOCK_BYTES = 64 * 1024;
constexpr std::size_t MAX_RESIDENT_BYTES = std::size_t{14} << 20;

std::size_t BlocksOf(Bytes mapping)
{
    return (mapping.size() + BLOCK_BYTES - 1) / BLOCK_BYTES;
}

} // namespace

ResidentPages::ResidentPages(std::vector<Bytes> mappings) : m_mappings(std::move(mappings))
{
    auto const addSize = [](std::size_t sum, Bytes mapping) { return sum + mapping.size(); };
    m_isLimited = std::accumulate(m_mappings.begin(), m_mappings.end(), std::size_t(0), addSize) > MAX_RESIDENT_BYTES;
    if (!m_isLimited)
    {
        return;
    }
    std::size_t blocks = 0;
    for (Bytes const mapping : m_mappings)
    {
        m_firstBlocks.push_back(blocks);
        blocks += BlocksOf(mapping);
    }
    m_isTouched.resize(blocks);
}

void ResidentPages::TouchOthers(std::size_t mapping, std::size_t begin, std::size_t size)
{
    if (m_touchedBytes > MAX_RESIDENT_BYTES)
    {
        GiveBack();
    }
    std::size_t const first = begin / BLOCK_BYTES;
    std::size_t const end = std::min((begin + size + BLOCK_BYTES - 1) / BLOCK_BYTES, BlocksOf(m_mappings[mapping]));
    for (std::size_t block = first; block < end; ++block)
    {
        auto isTouched = m_isTouched[m_firstBlocks[mapping] + block];
        std::size_t const bytes = std::min(BLOCK_BYTES, m_mappings[mapping].size() - block * BLOCK_BYTES);
        m_touchedBytes += isTouched ? 0 : bytes;
        isTouched = true;
    }
    if (m_touched.empty() || m_touched.back() != mapping)
    {
        m_touched.push_back(mapping);
    }
    m_last = mapping;
    m_lastBegin = first * BLOCK_BYTES;
    m_lastEnd = end * BLOCK_BYTES;
}

void ResidentPages::GiveBack()
{
    for (std::size_t const mapping : m_touched)
    {
        Bytes const bytes = m_mappings[mapping];
        static_cast<void>(madvise(const_cast<std::uint8_t*>(bytes.data()), bytes.size(), MADV_DONTNEED));
    }
    m_touched.clear();
    m_touchedBytes = 0;
    std::fill(m_isTouched.begin(), m_isTouched.end(), false);
}

} // namespace Pelnar::Engine
