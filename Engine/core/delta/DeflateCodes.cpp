#include "Engine/core/delta/DeflateCodes.h"

#include <algorithm>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr std::uint32_t END_OF_BLOCK = 256;
constexpr std::size_t LENGTH_SYMBOLS = 286;
constexpr std::size_t DISTANCE_SYMBOLS = 30;
constexpr std::uint16_t LONGEST_REPETITION = 258;

/// The range of numbers of one symbol: the smallest number, and the count of extra bits after the symbol's code.
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
    ranges[28] = {LONGEST_REPETITION, 0};
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

/// The range of a number, counted from the smallest one. Each of the first 2 * SHARES numbers is a range. After these,
/// each interval between powers of two is divided into SHARES ranges.
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
    return length == LONGEST_REPETITION ? 28 : SymbolOf<2>(length - 3u);
}

std::uint32_t DistanceSymbolOf(std::uint16_t distance)
{
    return SymbolOf<1>(distance - 1u);
}

/// Writes the repetition \a token at \a target, and up to 15 bytes behind it.
void Repeat(std::uint8_t* target, DeflateToken token)
{
    constexpr std::size_t BLOCK_BYTES = 16;
    std::uint8_t const* const source = target - token.value;
    if (token.value < BLOCK_BYTES)
    {
        for (std::size_t i = 0; i < token.length; ++i)
        {
            target[i] = source[i];
        }
        return;
    }
    for (std::size_t i = 0; i < token.length; i += BLOCK_BYTES)
    {
        std::memcpy(target + i, source + i, BLOCK_BYTES);
    }
}

} // namespace

void BitWriter::Append(Bytes bytes)
{
    m_count = (m_count + 7) & ~7u;
    Flush();
    m_bytes.resize(m_size);
    m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
    m_size = m_bytes.size();
}

ByteBuffer BitWriter::Take()
{
    Append({});
    m_size = 0;
    return std::exchange(m_bytes, {});
}

bool DeflateCode::Build(std::uint8_t const* lengths, std::size_t count)
{
    m_lengths.fill(0);
    std::copy_n(lengths, count, m_lengths.begin());
    m_counts.fill(0);
    for (std::size_t i = 0; i < count; ++i)
    {
        ++m_counts[m_lengths[i]];
    }
    m_counts[0] = 0;
    std::array<std::uint32_t, MAX_CODE_BITS + 1> next{};
    std::array<std::uint32_t, MAX_CODE_BITS + 1> place{};
    for (unsigned bits = 1; bits <= MAX_CODE_BITS; ++bits)
    {
        next[bits] = (next[bits - 1] + m_counts[bits - 1]) << 1;
        place[bits] = place[bits - 1] + m_counts[bits - 1];
        if (next[bits] + m_counts[bits] > 1u << bits)
        {
            return false;
        }
    }
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
        if (bits > 0)
        {
            m_sorted[place[bits]++] = static_cast<std::uint16_t>(symbol);
        }
    }
    return true;
}

void DeflateCode::MakeTable()
{
    m_table.fill(0);
    for (std::size_t symbol = 0; symbol < m_lengths.size(); ++symbol)
    {
        unsigned const bits = m_lengths[symbol];
        for (std::size_t i = m_codes[symbol]; bits > 0 && bits <= TABLE_BITS && i < m_table.size();
             i += std::size_t(1) << bits)
        {
            m_table[i] = static_cast<std::uint16_t>(symbol << 4 | bits);
        }
    }
}

/// The codes of one length are consecutive numbers, and follow those of shorter lengths.
std::uint32_t DeflateCode::FindLong(std::uint32_t bits) const
{
    std::uint32_t code = 0;
    std::uint32_t first = 0;
    std::uint32_t place = 0;
    for (unsigned length = 1; length <= MAX_CODE_BITS; ++length)
    {
        code = code << 1 | (bits >> (length - 1) & 1);
        if (code - first < m_counts[length])
        {
            return std::uint32_t(m_sorted[place + (code - first)]) << 4 | length;
        }
        first = (first + m_counts[length]) << 1;
        place += m_counts[length];
    }
    return std::uint32_t(MAX_SYMBOLS) << 4;
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
    code.MakeTable();
    std::array<std::uint8_t, LENGTH_SYMBOLS + DISTANCE_SYMBOLS> all{};
    std::size_t const total = lengths + distances;
    for (std::size_t i = 0; i < total;)
    {
        bits.Refill();
        std::uint32_t const symbol = code.Read(bits);
        if (symbol == DeflateCode::MAX_SYMBOLS || bits.IsOverrun())
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

bool BlockCodes::Start(BitReader& bits, BlockKind kind)
{
    bool const hasCodes = kind == BlockKind::Fixed     ? SetFixed()
                          : kind == BlockKind::Dynamic ? ReadDynamic(bits)
                                                       : false;
    if (hasCodes)
    {
        m_lengths.MakeTable();
        m_distances.MakeTable();
    }
    return hasCodes;
}

[[gnu::always_inline]] inline bool BlockCodes::ReadNext(BitReader& bits, DeflateToken& token, bool& isEnd) const
{
    bits.Refill(); // a token has at most 48 bits
    std::uint32_t const symbol = m_lengths.Read(bits);
    isEnd = symbol == END_OF_BLOCK;
    if (symbol <= END_OF_BLOCK)
    {
        token = {0, static_cast<std::uint16_t>(symbol)};
        return !bits.IsOverrun();
    }
    std::size_t const number = symbol - END_OF_BLOCK - 1;
    if (number >= LENGTHS.size())
    {
        return false;
    }
    std::uint32_t const length = LENGTHS[number].base + bits.TakeReady(LENGTHS[number].bits);
    std::uint32_t const distance = m_distances.Read(bits);
    if (distance >= DISTANCES.size())
    {
        return false;
    }
    token.length = static_cast<std::uint16_t>(length);
    token.value = static_cast<std::uint16_t>(DISTANCES[distance].base + bits.TakeReady(DISTANCES[distance].bits));
    return !bits.IsOverrun();
}

bool BlockCodes::Read(BitReader& bits, DeflateToken& token, bool& isEnd) const
{
    return ReadNext(bits, token, isEnd);
}

bool BlockCodes::Read(BitReader& bits, TextInProgress& text) const
{
    BitReader reader = bits; // in registers, as the text's size
    std::uint8_t* begin = text.Begin();
    std::size_t limit = text.Limit();
    std::size_t size = text.Size();
    bool isEnd = false;
    for (DeflateToken token; ReadNext(reader, token, isEnd) && !isEnd;)
    {
        if (size > limit)
        {
            text.SetSize(size);
            if (!text.Grow())
            {
                return false;
            }
            begin = text.Begin();
            limit = text.Limit();
        }
        if (token.length == 0)
        {
            begin[size++] = static_cast<std::uint8_t>(token.value);
            continue;
        }
        if (token.value > size)
        {
            return false;
        }
        text.AddRepetition({static_cast<std::uint32_t>(size), token.length, token.value});
        Repeat(begin + size, token);
        size += token.length;
    }
    text.SetSize(size);
    bits = reader;
    return isEnd && !reader.IsOverrun();
}

void BlockCodes::StartWriting()
{
    for (std::uint16_t length = LENGTHS[0].base; length < m_codedLengths.size(); ++length)
    {
        std::uint32_t const symbol = LengthSymbolOf(length);
        CodedBits coded = m_lengths.Coded(END_OF_BLOCK + 1 + symbol);
        if (coded.count > 0)
        {
            coded.bits |= (length - std::uint32_t(LENGTHS[symbol].base)) << coded.count;
            coded.count += LENGTHS[symbol].bits;
        }
        m_codedLengths[length] = coded;
    }
}

[[gnu::always_inline]] inline bool BlockCodes::WriteRepetition(BitWriter& bits, Repetition repetition) const
{
    std::uint32_t const symbol = DistanceSymbolOf(repetition.distance);
    CodedBits const length = m_codedLengths[repetition.length];
    CodedBits const distance = m_distances.Coded(symbol);
    std::uint32_t const offset = repetition.distance - std::uint32_t(DISTANCES[symbol].base);
    bits.Put(length);
    bits.Put(distance.bits | offset << distance.count, distance.count + DISTANCES[symbol].bits);
    return length.count > 0 && distance.count > 0;
}

bool BlockCodes::Write(BitWriter& bits, TokenWalk& tokens, std::uint64_t count) const
{
    while (count > 0)
    {
        Bytes const literals = tokens.TakeLiterals(count);
        for (std::uint8_t const literal : literals)
        {
            CodedBits const coded = m_lengths.Coded(literal);
            if (coded.count == 0)
            {
                return false;
            }
            bits.Put(coded);
        }
        count -= literals.size();
        if (count > 0)
        {
            std::optional<Repetition> const repetition = tokens.TakeRepetition();
            if (!repetition || !WriteRepetition(bits, *repetition))
            {
                return false;
            }
            --count;
        }
    }
    return true;
}

bool BlockCodes::WriteEnd(BitWriter& bits) const
{
    CodedBits const coded = m_lengths.Coded(END_OF_BLOCK);
    bits.Put(coded);
    return coded.count > 0;
}

} // namespace Pelnar::Engine
