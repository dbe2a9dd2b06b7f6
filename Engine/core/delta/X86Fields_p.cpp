// The fields of x86-64 code. See AddressFields.h.

#include "Engine/core/delta/AddressFields.h"

#include "Engine/core/delta/SixteenBytes.h"

#include <algorithm>
#include <array>

namespace Pelnar::Engine
{
namespace
{

/// A bit for each of 16 \a bytes after which a field may be. The highest byte of a distance is enough to rule out most
/// distances that lead out of the program: it must be at most \a reach from 0.
std::uint32_t OpeningsAmong(std::uint8_t const* bytes, std::uint8_t reach)
{
    SixteenBytes const first = Load(bytes);
    SixteenBytes const second = Load(bytes + 1);
    SixteenBytes const highest = Load(bytes + 4) + reach;
    auto const isBranch = (first & 0xFE) == 0xE8;
    auto const isMemory = (first & 0xC7) == 0x05;
    auto const isConditional = (first == 0x0F) & ((second & 0xF0) == 0x80);
    auto const isNear = highest <= static_cast<std::uint8_t>(std::min(2 * reach, 0xFF));
    return BitsOf(reinterpret_cast<SixteenBytes>(((isBranch | isMemory) & isNear) | isConditional));
}

/// Distances of which only the two highest bytes are looked at.
struct DistanceRange
{
    std::uint8_t lowestByte;
    std::uint8_t lowestSpan; ///< the largest byte minus the smallest one
    std::uint8_t highestByte;
    std::uint8_t highestSpan;
};

/// REQUIRES: \a least is not larger than \a most, and both have 32 bits.
DistanceRange DistancesBetween(std::int64_t least, std::int64_t most)
{
    auto const low = static_cast<std::uint32_t>(least);
    auto const high = static_cast<std::uint32_t>(most);
    auto const highestSpan = static_cast<std::uint8_t>((high >> 24) - (low >> 24));
    auto const third = static_cast<std::uint8_t>(low >> 16);
    bool const isOne = highestSpan == 0;
    return {isOne ? third : std::uint8_t(0),
            isOne ? static_cast<std::uint8_t>(static_cast<std::uint8_t>(high >> 16) - third) : std::uint8_t(0xFF),
            static_cast<std::uint8_t>(low >> 24), highestSpan};
}

/// True if one of the distances that begin 1 to 64 bytes behind \a bytes may be in \a range.
bool HasDistance(std::uint8_t const* bytes, DistanceRange range)
{
    SixteenBytes any{};
    for (unsigned i = 0; i < 64; i += 16)
    {
        auto const isThird = Load(bytes + i + 3) - range.lowestByte <= range.lowestSpan;
        auto const isFourth = Load(bytes + i + 4) - range.highestByte <= range.highestSpan;
        any |= reinterpret_cast<SixteenBytes>(isThird & isFourth);
    }
    return BitsOf(any) != 0;
}

} // namespace

/// Finds by how much the addresses of the current code move. False if it is unknown, not the same for all, or if most
/// targets move otherwise.
bool FieldScanner::FindCodeShift()
{
    if (!m_move)
    {
        return false;
    }
    std::uint64_t const begin = m_position + m_move->shift;
    std::uint64_t const size = m_regionEnd - m_position;
    auto const holdsCode = [begin, size](ImageSpan const& span)
    { return begin >= span.offset && begin - span.offset < span.size && size <= span.size - (begin - span.offset); };
    auto const span = std::find_if(m_move->newSpans->begin(), m_move->newSpans->end(), holdsCode);
    if (span == m_move->newSpans->end())
    {
        return false;
    }
    m_codeShift = static_cast<std::uint32_t>(span->address + (begin - span->offset) - Address(m_position));
    AddressMap::Range const others = m_move->map->MovingOtherwise(m_codeShift);
    std::uint64_t const othersSize = others.end - others.begin;
    // In a large range there are fields in nearly all blocks.
    bool const isSmall = othersSize < m_image.size / 16;
    m_othersBegin = others.begin;
    m_othersSize = isSmall ? othersSize : 0;
    // If most fields change, it takes longer to look which ones.
    return m_codeShift != AddressMap::MIXED_SHIFT && (isSmall || m_move->map->IsUsual(m_codeShift));
}

/// Looks at the 64 bytes from \a begin on, without a branch for each: one byte of ten is an opening, and none can be
/// predicted.
void FieldScanner::FindX86Openings(std::size_t begin)
{
    Reach(begin);
    constexpr std::size_t READ_BYTES = OPENINGS_BYTES + 4;
    std::array<std::uint8_t, READ_BYTES> last{};
    std::uint8_t const* bytes = m_file.data() + begin;
    if (m_file.size() - begin < READ_BYTES)
    {
        std::copy_n(bytes, m_file.size() - begin, last.data());
        bytes = last.data();
    }
    m_openings = 0;
    for (unsigned i = 0; i < OPENINGS_BYTES; i += 16)
    {
        m_openings |= std::uint64_t(OpeningsAmong(bytes + i, static_cast<std::uint8_t>(m_reach))) << i;
    }
    m_openingsEnd = begin + OPENINGS_BYTES;
}

/// Looks at the openings in any order: an opening counts if it is in no other field, and that depends only on the bytes
/// before it. This is looked at only for fields that change.
bool FieldScanner::NextMovingInX86Code(AddressField& field)
{
    for (;;)
    {
        std::size_t const begin = m_openingsEnd - OPENINGS_BYTES;
        std::uint64_t const behindField = Address(begin) + sizeof(std::uint32_t);
        while (m_openings != 0)
        {
            std::size_t const position = begin + static_cast<std::size_t>(__builtin_ctzll(m_openings));
            m_openings &= m_openings - 1;
            std::size_t const at = position + (m_file[position] == 0x0F ? 2 : 1);
            if (at + 4 > m_regionEnd)
            {
                continue;
            }
            std::uint64_t const target = behindField + (at - begin) + SignExtended(Word32(at), 32);
            bool const changes = !m_move->map->MovesWithPage(target, m_codeShift);
            if (changes && EndOfX86Field(position) != 0 && IsFree(position))
            {
                field.form = FieldForm::Relative32;
                field.position = at;
                field.target = target;
                m_position = at + 4;
                return true;
            }
        }
        if (m_openingsEnd + 5 > m_regionEnd)
        {
            return false;
        }
        FindX86Openings(SkipBlocks(m_openingsEnd));
        m_block = m_openings;
    }
}

/// The first block of 64 bytes, from \a begin on, with fields that may lead to the places that move differently.
std::size_t FieldScanner::SkipBlocks(std::size_t begin)
{
    constexpr std::size_t READ_BYTES = OPENINGS_BYTES + 4;
    constexpr std::int64_t LARGEST = 0x7FFFFFFF;
    // A conditional branch at the end of a block has its distance one byte later.
    for (; m_othersSize > 0 && begin + READ_BYTES <= m_regionEnd; begin += OPENINGS_BYTES)
    {
        Reach(begin);
        auto const most = static_cast<std::int64_t>(m_othersBegin + m_othersSize - 1 - (Address(begin) + 5));
        std::int64_t const least = most - static_cast<std::int64_t>(m_othersSize - 1 + OPENINGS_BYTES);
        bool const isReachable = most >= -LARGEST - 1 && least <= LARGEST;
        if (isReachable && (m_file[begin + OPENINGS_BYTES - 1] == 0x0F ||
                            HasDistance(m_file.data() + begin,
                                        DistancesBetween(std::max(least, -LARGEST - 1), std::min(most, LARGEST)))))
        {
            break;
        }
    }
    return begin;
}

/// The end of the field after \a opening; 0 if no field follows.
std::size_t FieldScanner::EndOfX86Field(std::size_t opening) const
{
    if (opening + 5 > m_regionEnd)
    {
        return 0;
    }
    std::uint8_t const byte = m_file[opening];
    bool const isMemory = (byte & 0xC7) == 0x05;
    bool const isConditional = byte == 0x0F && (m_file[opening + 1] & 0xF0) == 0x80;
    bool const isNear = static_cast<std::uint8_t>(m_file[opening + 4] + m_reach) <= std::min(2 * m_reach, 0xFFu);
    bool const isOpening = isConditional || ((isMemory || (byte & 0xFE) == 0xE8) && isNear);
    std::size_t const at = opening + (isConditional ? 2 : 1);
    if (!isOpening || at + 4 > m_regionEnd)
    {
        return 0;
    }
    std::uint64_t const target = Address(at) + 4 + SignExtended(Word32(at), 32);
    AddressRange const& range = isMemory ? m_image : m_code;
    return target - range.lowest < range.size ? at + 4 : 0;
}

/// True if no field covers \a position. Fields before m_position cover nothing behind it.
bool FieldScanner::IsFree(std::size_t position)
{
    constexpr std::size_t REACH = 5; ///< a field may cover this many bytes behind its opening
    std::size_t const inBlock = position - (m_openingsEnd - OPENINGS_BYTES);
    bool const isAlone = inBlock >= REACH && (m_block >> (inBlock - REACH) & ((1u << REACH) - 1)) == 0;
    if (isAlone || position < m_position)
    {
        return isAlone;
    }
    // Back to a place that no field covers. The bytes before it do not matter.
    std::size_t begin = position;
    for (std::size_t at = begin; at > m_position && begin - at < REACH;)
    {
        --at;
        begin = EndOfX86Field(at) > begin ? at : begin;
    }
    while (begin < position)
    {
        begin = std::max(EndOfX86Field(begin), begin + 1);
    }
    m_position = begin;
    return begin == position;
}

} // namespace Pelnar::Engine
