// TokenCorrections.h: says where the tokens of a packed text differ from those of the old text, as numbers.
// Thread: one at a time. Ownership: values only; a reader refers to its numbers, which outlive it.
#pragma once

#include "Engine/core/delta/DeflateCodes.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Pelnar::Engine
{

using DeflateTokens = std::vector<DeflateToken>;

/// Where tokens differ from those of the old text. For each equal run of the texts: the number of corrections; for each
/// one how many tokens are copied before it, its number of tokens, and for each token its length and, for a repetition,
/// its distance; then how many tokens are copied after the last correction.
using TokenCorrections = std::vector<std::uint64_t>;
constexpr std::size_t MAX_CORRECTION_NUMBERS = 1u << 16;

/// Appends a correction before which \a copied old tokens are copied.
void AppendCorrection(TokenCorrections& corrections, std::uint64_t copied, DeflateTokens const& tokens);

/// Takes corrections number by number. After the last one it takes zeros, and is not good any more.
class CorrectionReader
{
public:
    explicit CorrectionReader(TokenCorrections const& numbers) : m_numbers(numbers) {}

    std::uint64_t Take()
    {
        m_isGood = m_isGood && m_next < m_numbers.size();
        return m_isGood ? m_numbers[m_next++] : 0;
    }
    bool IsGood() const { return m_isGood; }
    bool IsAtEnd() const { return m_isGood && m_next == m_numbers.size(); }

private:
    TokenCorrections const& m_numbers;
    std::size_t m_next = 0;
    bool m_isGood = true;
};

} // namespace Pelnar::Engine
