#include "Engine/core/delta/DeflateCodes.h"

#include <algorithm>
#include <cstring>

namespace Pelnar::Engine
{
namespace
{

constexpr std::uint32_t END_OF_BLOCK = 256;
constexpr std::size_t LENGTH_SYMBOLS = 286;
constexpr std::size_t DISTANCE_SYMBOLS = 30;
constexpr std::size_t MAX_LENGTH = 258;

/// The least number that a symbol stands for, and the bits behind it that tell how much more it is.
struct Range
{
    std::uint16_t base;
    std::uint8_t bits;
};

constexpr std::array<Range, 29> MakeLengths()
{
    std::array<Range, 29> ranges{};
    unsigned base = 3;
    for (unsigned i = 0; i < 28; ++i)
    {
        unsigned const bits = i < 8 ? 0 : i / 4 - 1;
        ranges[i] = {static_cast<std::uint16_t>(base), static_cast<std::uint8_t>(bits)};
        base += 1u << bits;
    }
    ranges[28] = {MAX_LENGTH, 0};
    return ranges;
}

constexpr std::array<Range, DISTANCE_SYMBOLS> MakeDistances()
{
    std::array<Range, DISTANCE_SYMBOLS> ranges{};
    unsigned base = 1;
    for (unsigned i = 0; i < DISTANCE_SYMBOLS; ++i)
    {
        unsigned const bits = i < 4 ? 0 : i / 2 - 1;
        ranges[i] = {static_cast<std::uint16_t>(base), static_cast<std::uint8_t>(bits)};
        base += 1u << bits;
    }
    return ranges;
}

constexpr std::array<Range, 29> LENGTHS = MakeLengths();
constexpr std::array<Range, DISTANCE_SYMBOLS> DISTANCES = MakeDistances();

/// A range for each number of two bits, and from the second pair on half of the numbers of one bit more each.
template <unsigned SharesBits>
constexpr std::uint32_t SymbolOf(std::uint32_t offset)
{
    constexpr std::uint32_t SHARES = 1u << SharesBits;
    if (offset < 2 * SHARES)
    {
        return offset;
    }
    unsigned const bits = 31u - static_cast<unsigned>(__builtin_clz(offset)) - SharesBits;
    return SHARES * bits + (offset >> bits);
}

std::uint32_t LengthSymbolOf(std::uint16_t length)
{
    return length == MAX_LENGTH ? 28 : SymbolOf<2>(length - 3u);
}

std::uint32_t DistanceSymbolOf(std::uint16_t distance)
{
    return SymbolOf<1>(distance - 1u);
}

} // namespace

std::uint32_t BitReader::Peek(unsigned count) const
{
    std::size_t const first = m_position / 8;
    std::uint32_t word = 0;
    if (first + sizeof word <= m_bytes.size())
    {
        std::memcpy(&word, m_bytes.data() + first, sizeof word);
    }
    for (std::size_t i = first; i < m_bytes.size() && first + sizeof word > m_bytes.size(); ++i)
    {
        word |= std::uint32_t(m_bytes[i]) << (8 * (i - first));
    }
    return word >> (m_position % 8) & ((1u << count) - 1);
}

std::uint32_t BitReader::Take(unsigned count)
{
    std::uint32_t const bits = Peek(count);
    Skip(count);
    return bits;
}

void BitWriter::Put(std::uint32_t bits, unsigned count)
{
    m_bits |= (bits & ((std::uint64_t(1) << count) - 1)) << m_count;
    for (m_count += count; m_count >= 8; m_count -= 8)
    {
        m_bytes.push_back(static_cast<std::uint8_t>(m_bits));
        m_bits >>= 8;
    }
}

bool DeflateCode::Build(std::uint8_t const* lengths, std::size_t count)
{
    std::array<std::uint32_t, MAX_CODE_BITS + 1> counts{};
    m_lengths.fill(0);
    std::copy_n(lengths, count, m_lengths.begin());
    for (std::size_t i = 0; i < count; ++i)
    {
        ++counts[m_lengths[i]];
    }
    counts[0] = 0;
    std::array<std::uint32_t, MAX_CODE_BITS + 1> next{};
    for (unsigned bits = 1; bits <= MAX_CODE_BITS; ++bits)
    {
        next[bits] = (next[bits - 1] + counts[bits - 1]) << 1;
        if (next[bits] + counts[bits] > 1u << bits)
        {
            return false;
        }
    }
    m_hasTable = false;
    m_longest = 0;
    for (std::size_t symbol = 0; symbol < count; ++symbol)
    {
        unsigned const bits = m_lengths[symbol];
        std::uint32_t const code = bits == 0 ? 0 : next[bits]++;
        std::uint32_t reversed = 0;
        for (unsigned i = 0; i < bits; ++i)
        {
            reversed |= (code >> i & 1) << (bits - 1 - i);
        }
        m_codes[symbol] = static_cast<std::uint16_t>(reversed);
        m_longest = std::max(m_longest, bits);
    }
    return true;
}

void DeflateCode::MakeTable()
{
    std::size_t const size = std::size_t(1) << m_longest;
    std::fill_n(m_table.begin(), size, std::uint16_t(0));
    for (std::size_t symbol = 0; symbol < m_lengths.size(); ++symbol)
    {
        unsigned const bits = m_lengths[symbol];
        for (std::size_t i = m_codes[symbol]; bits > 0 && i < size; i += std::size_t(1) << bits)
        {
            m_table[i] = static_cast<std::uint16_t>(symbol << 4 | bits);
        }
    }
    m_hasTable = true;
}

bool DeflateCode::Read(BitReader& bits, std::uint32_t& symbol)
{
    if (!m_hasTable)
    {
        MakeTable();
    }
    std::uint16_t const found = m_table[bits.Peek(m_longest)];
    bits.Skip(found & 15u);
    symbol = found >> 4;
    return found != 0 && !bits.IsOverrun();
}

bool DeflateCode::Write(BitWriter& bits, std::uint32_t symbol) const
{
    bits.Put(m_codes[symbol], m_lengths[symbol]);
    return m_lengths[symbol] != 0;
}

bool BlockCodes::SetFixed()
{
    std::array<std::uint8_t, DeflateCode::MAX_SYMBOLS> lengths;
    for (std::size_t i = 0; i < lengths.size(); ++i)
    {
        lengths[i] = i < 144 ? 8 : i < 256 ? 9 : i < 280 ? 7 : 8;
    }
    bool const isBuilt = m_lengths.Build(lengths.data(), lengths.size());
    lengths.fill(5);
    return isBuilt && m_distances.Build(lengths.data(), 32);
}

bool BlockCodes::ReadDynamic(BitReader& bits)
{
    constexpr std::array<std::uint8_t, 19> ORDER{16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15};
    std::size_t const lengths = bits.Take(5) + 257;
    std::size_t const distances = bits.Take(5) + 1;
    std::size_t const codes = bits.Take(4) + 4;
    std::array<std::uint8_t, 19> few{};
    for (std::size_t i = 0; i < codes; ++i)
    {
        few[ORDER[i]] = static_cast<std::uint8_t>(bits.Take(3));
    }
    DeflateCode code;
    if (lengths > LENGTH_SYMBOLS || distances > DISTANCE_SYMBOLS || !code.Build(few.data(), few.size()))
    {
        return false;
    }
    std::array<std::uint8_t, LENGTH_SYMBOLS + DISTANCE_SYMBOLS> all{};
    std::size_t const total = lengths + distances;
    for (std::size_t i = 0; i < total;)
    {
        std::uint32_t symbol = 0;
        if (!code.Read(bits, symbol))
        {
            return false;
        }
        std::size_t count = 1;
        std::uint8_t value = static_cast<std::uint8_t>(symbol);
        if (symbol >= 16)
        {
            count = symbol == 16 ? 3 + bits.Take(2) : symbol == 17 ? 3 + bits.Take(3) : 11 + bits.Take(7);
            value = symbol == 16 && i > 0 ? all[i - 1] : std::uint8_t(0);
        }
        bool const isBroken = (symbol == 16 && i == 0) || count > total - i;
        if (isBroken)
        {
            return false;
        }
        std::fill_n(all.begin() + static_cast<std::ptrdiff_t>(i), count, value);
        i += count;
    }
    return !bits.IsOverrun() && m_lengths.Build(all.data(), lengths) &&
           m_distances.Build(all.data() + lengths, distances);
}

bool BlockCodes::Read(BitReader& bits, DeflateToken& token, bool& isEnd)
{
    std::uint32_t symbol = 0;
    if (!m_lengths.Read(bits, symbol))
    {
        return false;
    }
    isEnd = symbol == END_OF_BLOCK;
    if (symbol <= END_OF_BLOCK)
    {
        token = {0, static_cast<std::uint16_t>(symbol)};
        return true;
    }
    std::uint32_t distance = 0;
    std::size_t const number = symbol - END_OF_BLOCK - 1;
    if (number >= LENGTHS.size())
    {
        return false;
    }
    token.length = static_cast<std::uint16_t>(LENGTHS[number].base + bits.Take(LENGTHS[number].bits));
    if (!m_distances.Read(bits, distance) || distance >= DISTANCES.size())
    {
        return false;
    }
    token.value = static_cast<std::uint16_t>(DISTANCES[distance].base + bits.Take(DISTANCES[distance].bits));
    return !bits.IsOverrun();
}

bool BlockCodes::Write(BitWriter& bits, DeflateToken token) const
{
    if (token.length == 0)
    {
        return m_lengths.Write(bits, token.value);
    }
    std::uint32_t const length = LengthSymbolOf(token.length);
    std::uint32_t const distance = DistanceSymbolOf(token.value);
    bool const hasLength = m_lengths.Write(bits, END_OF_BLOCK + 1 + length);
    bits.Put(token.length - std::uint32_t(LENGTHS[length].base), LENGTHS[length].bits);
    bool const hasDistance = m_distances.Write(bits, distance);
    bits.Put(token.value - std::uint32_t(DISTANCES[distance].base), DISTANCES[distance].bits);
    return hasLength && hasDistance;
}

bool BlockCodes::WriteEnd(BitWriter& bits) const
{
    return m_lengths.Write(bits, END_OF_BLOCK);
}

} // namespace Pelnar::Engine
