// StepFinder.h: finds the steps of a patch: which pieces of a new text are similar to which pieces of an old one. It
// runs only on the publisher's computer; its memory is five times the old text's size. Thread: several threads may use
// an index once it is built. Ownership: the caller owns the texts, which outlive the index.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"

#include <cstdint>
#include <vector>

namespace Pelnar::Engine
{

struct TextMatch
{
    std::int64_t position = 0; ///< in the old text
    std::int64_t length = 0;
};

/// The maximum size of an indexed text.
constexpr std::size_t MAX_INDEXED_BYTES = 0x7FFFFFFE;

/// A suffix array. It finds the longest piece of the text that is a prefix of another text.
class SuffixIndex
{
public:
    /// False if the index cannot be built: the text is larger than MAX_INDEXED_BYTES, or memory is short.
    [[nodiscard]] bool Build(Bytes text);
    Bytes Text() const { return m_text; }
    /// The longest piece that is a prefix of \a wanted; among pieces of the same length the one at \a expected, if it
    /// is one of them.
    TextMatch Longest(Bytes wanted, std::int64_t expected) const;

private:
    Bytes m_text;
    std::vector<std::int32_t> m_order;
};

/// The steps that make \a newText. \a position: the start in the old text, and afterwards the end.
[[nodiscard]] std::vector<PatchStep> FindSteps(SuffixIndex const& index, Bytes newText, std::uint64_t& position);

} // namespace Pelnar::Engine
