// DeflateCodes.h: reads deflated data token by token, and writes tokens with the codes of given blocks. Thread: one at
// a time. Ownership: refers to the input bytes, which outlive it. Any bytes are safe.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"
#include "Engine/core/delta/TokenizedText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace Pelnar::Engine
{

/// Reads bits, the lowest of each byte first. After the end it reads zeros.
class BitReader
{
public:
    /// Starts at the bit \a position.
    explicit BitReader(Bytes bytes, std::size_t position = 0) : m_bytes(bytes), m_next(position / 8)
    {
        Take(position % 8);
    }

    /// Makes at least 56 bits ready for Peek and Skip.
    void Refill()
    {
        if (m_next + sizeof m_bits <= m_bytes.size())
        {
            std::uint64_t word;
            std::memcpy(&word, m_bytes.data() + m_next, sizeof word);
            m_bits |= word << m_count;
            m_next += (63 - m_count) / 8;
            m_count |= 56;
            return;
        }
        RefillAtEnd();
    }
    /// At least the next 16 bits; higher bits have no meaning. REQUIRES: they are ready.
    std::uint32_t Peek() const { return static_cast<std::uint32_t>(m_bits); }
    /// REQUIRES: the bits are ready.
    void Skip(std::size_t count)
    {
        m_bits >>= count;
        m_count -= static_cast<unsigned>(count);
    }
    /// REQUIRES: at most 16 bits, and they are ready.
    std::uint32_t TakeReady(std::size_t count)
    {
        std::uint32_t const bits = Peek() & ((1u << count) - 1);
        Skip(count);
        return bits;
    }
    /// At most 16 bits.
    std::uint32_t Take(std::size_t count)
    {
        Refill();
        return TakeReady(count);
    }
    std::size_t Position() const { return m_next * 8 - m_count; }
    bool IsOverrun() const { return Position() > m_bytes.size() * 8; }

private:
    // Inline, as all of this class, so that a loop keeps it in registers.
    void RefillAtEnd()
    {
        for (; m_count <= 56; m_count += 8, ++m_next)
        {
            m_bits &= ~(~std::uint64_t(0) << m_count);
            m_bits |= m_next < m_bytes.size() ? std::uint64_t(m_bytes[m_next]) << m_count : 0;
        }
    }

    Bytes m_bytes;
    std::size_t m_next;       ///< the first byte that is not in m_bits; past the end if m_bits contains padding zeros
    std::uint64_t m_bits = 0; ///< the next bits. Above the ready bits are bits of the byte at m_next, or zeros
    unsigned m_count = 0;     ///< of the ready bits
};

/// Bits and their count, for writing.
struct CodedBits
{
    std::uint32_t bits = 0;
    std::uint32_t count = 0; ///< 0 for a symbol without a code
};

class BitWriter
{
public:
    /// At most 28 bits. The bits of \a bits above \a count are 0.
    void Put(std::uint32_t bits, unsigned count)
    {
        m_bits |= std::uint64_t(bits) << m_count;
        m_count += count;
        if (m_count >= 32)
        {
            Flush();
        }
    }
    void Put(CodedBits coded) { Put(coded.bits, coded.count); }
    /// Fills the last byte with zeros and adds \a bytes.
    void Append(Bytes bytes);
    /// The bytes so far, without the last few.
    std::size_t Size() const { return m_size; }
    /// Fills the last byte with zeros and returns all bytes.
    ByteBuffer Take();

private:
    void Flush()
    {
        if (m_size + sizeof m_bits > m_bytes.size())
        {
            m_bytes.resize(2 * m_bytes.size() + 4096);
        }
        std::memcpy(m_bytes.data() + m_size, &m_bits, sizeof m_bits);
        std::size_t const bytes = m_count / 8;
        m_size += bytes;
        m_bits >>= bytes * 8;
        m_count %= 8;
    }

    ByteBuffer m_bytes;
    std::size_t m_size = 0; ///< the written part of m_bytes
    std::uint64_t m_bits = 0;
    unsigned m_count = 0; ///< of the bits in m_bits; at most 31 between calls
};

constexpr unsigned MAX_CODE_BITS = 15;

/// A Huffman code, defined by the lengths of its symbols' codes.
class DeflateCode
{
public:
    static constexpr std::size_t MAX_SYMBOLS = 288;

    /// False if the lengths do not form a code.
    [[nodiscard]] bool Build(std::uint8_t const* lengths, std::size_t count);
    /// REQUIRES: before the first Read after Build.
    void MakeTable();
    /// Returns a symbol and skips its bits; MAX_SYMBOLS if the next bits are no symbol's. REQUIRES: MAX_CODE_BITS are
    /// ready.
    std::uint32_t Read(BitReader& bits) const
    {
        std::uint32_t const entry = m_table[bits.Peek() % m_table.size()];
        std::uint32_t const found = entry != 0 ? entry : FindLong(bits.Peek());
        bits.Skip(found & 15u);
        return found >> 4;
    }
    CodedBits Coded(std::uint32_t symbol) const { return {m_codes[symbol], m_lengths[symbol]}; }

private:
    static constexpr unsigned TABLE_BITS = 10;

    /// An entry as in the table, for any code that \a bits start with. For no code its symbol is MAX_SYMBOLS.
    std::uint32_t FindLong(std::uint32_t bits) const;

    std::array<std::uint8_t, MAX_SYMBOLS> m_lengths{};
    std::array<std::uint16_t, MAX_SYMBOLS> m_codes{};        ///< with the first bit lowest, as they are written
    std::array<std::uint16_t, MAX_CODE_BITS + 1> m_counts{}; ///< symbols of each length
    std::array<std::uint16_t, MAX_SYMBOLS> m_sorted{};       ///< symbols in the order of their codes
    std::array<std::uint16_t, std::size_t(1) << TABLE_BITS>
        m_table; ///< indexed by the next bits: 16 times the symbol, plus the number of its bits; 0 for no symbol or a
                 ///< longer code
};

enum class BlockKind : std::uint8_t
{
    Stored = 0,
    Fixed = 1,
    Dynamic = 2,
};

/// The two codes of a block.
class BlockCodes
{
public:
    [[nodiscard]] bool SetFixed();
    /// Reads what comes before the tokens of a dynamic block.
    [[nodiscard]] bool ReadDynamic(BitReader& bits);
    /// Reads what comes before the tokens of a block of this kind. False for a stored and for a damaged block.
    [[nodiscard]] bool Start(BitReader& bits, BlockKind kind);
    /// Reads the next token, or sets \a isEnd at the end of the block. Returns false for damaged data.
    /// REQUIRES: Start.
    [[nodiscard]] bool Read(BitReader& bits, DeflateToken& token, bool& isEnd) const;
    /// Reads all tokens of the block. Returns false for damaged data, and if the text is too long.
    [[nodiscard]] bool Read(BitReader& bits, TextInProgress& text) const;
    /// REQUIRES: before the first Write after the codes have changed.
    void StartWriting();
    /// Writes the next \a count tokens. Returns false if there are fewer, and for a token without a code.
    [[nodiscard]] bool Write(BitWriter& bits, TokenWalk& tokens, std::uint64_t count) const;
    [[nodiscard]] bool WriteEnd(BitWriter& bits) const;

private:
    static constexpr std::size_t MAX_LENGTH = 258;

    bool WriteRepetition(BitWriter& bits, Repetition repetition) const;
    bool ReadNext(BitReader& bits, DeflateToken& token, bool& isEnd) const;

    DeflateCode m_lengths;
    DeflateCode m_distances;
    std::array<CodedBits, MAX_LENGTH + 1> m_codedLengths; ///< including the extra bits
};

} // namespace Pelnar::Engine
