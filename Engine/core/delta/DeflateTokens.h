// DeflateTokens.h: the tokens that zlib makes of a text: bytes, and repetitions of earlier bytes.
// Thread: one at a time. Ownership: values only; a reader refers to its bytes, which outlive it. Any bytes are safe.
// Finding repetitions takes most of the time of packing. So the tokens of equal texts are copied.
#pragma once

#include "Engine/core/delta/TokenCorrections.h"

#include <memory>
#include <optional>
#include <vector>

namespace Pelnar::Engine
{

/// Reads the tokens of deflated data, one block after the other.
class TokenReader
{
public:
    explicit TokenReader(Bytes bytes) : m_bits(bytes), m_codes(std::make_unique<BlockCodes>()) {}

    BitReader& Bits() { return m_bits; }
    BlockKind Kind() const { return m_kind; }
    bool IsLastBlock() const { return m_isLast; }

    /// False for a stored block and for a damaged one.
    [[nodiscard]] bool StartBlock();
    /// The next token of the block, or \a isEnd at its end. False for damaged data.
    [[nodiscard]] bool Next(DeflateToken& token, bool& isEnd) { return m_codes->Read(m_bits, token, isEnd); }
    /// The next token of all blocks. False at their end and for damaged data.
    [[nodiscard]] bool Next(DeflateToken& token);

private:
    BitReader m_bits;
    std::unique_ptr<BlockCodes> m_codes;
    BlockKind m_kind = BlockKind::Stored;
    bool m_isLast = false;
    bool m_isInBlock = false;
};

/// The parameters of zlib that its tokens depend on.
struct DeflateParameters
{
    int level;
    int memory;
};

/// An old packed text, and the steps that make the new text from it.
struct PackedBase
{
    TokenizedText text;
    std::vector<PatchStep> steps;
};

/// The tokens of \a text; nothing if zlib leaves a part of it unpacked. Throws std::bad_alloc.
[[nodiscard]] std::optional<Repetitions> TokensOf(Bytes text, DeflateParameters parameters);

/// The same tokens if \a base was deflated with the same parameters, otherwise other ones. They are copied from \a base
/// where the texts are equal, and zlib finds the others. Nothing if no part can be copied. Throws std::bad_alloc.
[[nodiscard]] std::optional<Repetitions> TokensLike(PackedBase const& base, Bytes text, DeflateParameters parameters);

/// The tokens of \a text by those of \a base and their corrections. zlib finds only those outside equal runs. Nothing
/// if the corrections are damaged. Throws std::bad_alloc.
[[nodiscard]] std::optional<Repetitions>
CorrectedTokens(PackedBase const& base, Bytes text, DeflateParameters parameters, TokenCorrections const& corrections);

/// The corrections that make the tokens of \a text; nothing if there are too many, or if no part can be copied. The
/// caller checks the result of CorrectedTokens. Throws std::bad_alloc.
[[nodiscard]] std::optional<TokenCorrections> FindCorrections(PackedBase const& base, TokenizedText const& text,
                                                              DeflateParameters parameters);

} // namespace Pelnar::Engine
