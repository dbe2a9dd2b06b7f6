// DeflateCodes.h: the bits of deflated data: read token by token, and written with the codes of given blocks.
// Thread: one at a time. Ownership: refers to the bytes that are read, which outlive it. Any bytes are safe.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace Pelnar::Engine
{

/// Takes bits, the lowest of each byte first. Behind the end there are zeros.
class BitReader
{
public:
    explicit BitReader(Bytes bytes) : m_bytes(bytes) {}

    /// At most 16.
    std::uint32_t Peek(unsigned count) const;
    void Skip(unsigned count) { m_position += count; }
    std::uint32_t Take(unsigned count);
    std::size_t Position() const { return m_position; }
    bool IsOverrun() const { return m_position > m_bytes.size() * 8; }

private:
    Bytes m_bytes;
    std::size_t m_position = 0;
};

class BitWriter
{
public:
    /// The lowest \a count of \a bits, at most 16.
    void Put(std::uint32_t bits, unsigned count);
    /// The full bytes.
    ByteBuffer& Buffer() { return m_bytes; }
    /// Fills the last byte with zeros.
    void EndByte() { Put(0, (8 - m_count) % 8); }

private:
    ByteBuffer m_bytes;
    std::uint64_t m_bits = 0;
    unsigned m_count = 0; ///< of the bits that fill no byte yet
};

constexpr unsigned MAX_CODE_BITS = 15;

/// A Huffman code by its lengths.
class DeflateCode
{
public:
    static constexpr std::size_t MAX_SYMBOLS = 288;

    /// False when the lengths make no code.
    [[nodiscard]] bool Build(std::uint8_t const* lengths, std::size_t count);
    /// False when no symbol has the next bits.
    [[nodiscard]] bool Read(BitReader& bits, std::uint32_t& symbol);
    /// False when \a symbol has no code.
    [[nodiscard]] bool Write(BitWriter& bits, std::uint32_t symbol) const;

private:
    void MakeTable();

    std::array<std::uint8_t, MAX_SYMBOLS> m_lengths{};
    std::array<std::uint16_t, MAX_SYMBOLS> m_codes{}; ///< as they are written
    unsigned m_longest = 0;                           ///< bits of the longest code
    bool m_hasTable = false;                          ///< only what is read needs it
    std::array<std::uint16_t, std::size_t(1) << MAX_CODE_BITS>
        m_table; ///< by the next m_longest bits: 16 times the symbol and the bits; 0 for none
};

enum class BlockKind : std::uint8_t
{
    Stored = 0,
    Fixed = 1,
    Dynamic = 2,
};

/// A byte as it is, or a piece of the text before.
struct DeflateToken
{
    std::uint16_t length = 0; ///< 0 for a byte
    std::uint16_t value = 0;  ///< the byte, or the distance
};

/// The two codes of a block.
class BlockCodes
{
public:
    [[nodiscard]] bool SetFixed();
    /// Reads what stands before a dynamic block's tokens.
    [[nodiscard]] bool ReadDynamic(BitReader& bits);
    /// The next token; \a isEnd instead at the end of the block. False when it is broken.
    [[nodiscard]] bool Read(BitReader& bits, DeflateToken& token, bool& isEnd);
    [[nodiscard]] bool Write(BitWriter& bits, DeflateToken token) const;
    [[nodiscard]] bool WriteEnd(BitWriter& bits) const;

private:
    DeflateCode m_lengths;
    DeflateCode m_distances;
};

} // namespace Pelnar::Engine
