// StepFinder.h: finds the steps of a patch: which pieces of a new text are like which pieces of an old one.
// Thread: an index may be used by several threads once it is built. Ownership: the texts are the caller's and outlive
// the index. A publisher's work: memory is five times the old text's size.
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

/// The largest text that an index takes.
constexpr std::size_t MAX_INDEXED_BYTES = 0x7FFFFFFE;

/// All suffixes of a text in order. Finds the longest piece of the text that another text begins with.
class SuffixIndex
{
public:
    /// False when the index cannot be built: the text is larger than MAX_INDEXED_BYTES, or memory is lacking.
    [[nodiscard]] bool Build(Bytes text);
    Bytes Text() const { return m_text; }
    /// The longest piece that \a wanted begins with; of several as long the one at \a expected, if it is one of them.
    TextMatch Longest(Bytes wanted, std::int64_t expected) const;

private:
    Bytes m_text;
    std::vector<std::int32_t> m_order;
};

/// The steps that make \a newText. \a position: where they start in the old text, and then where they have ended.
[[nodiscard]] std::vector<PatchStep> FindSteps(SuffixIndex const& index, Bytes newText, std::uint64_t& position);

} // namespace Pelnar::Engine
