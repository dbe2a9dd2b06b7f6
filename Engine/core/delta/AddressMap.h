// AddressMap.h: where the places of an old program have gone in the new one, by the steps of the patch between them.
// Thread: any once built. Ownership: values only.
#pragma once

#include "Engine/core/delta/ImageLayout.h"

#include <cstdint>
#include <vector>

namespace Pelnar::Engine
{

/// More steps than a program's patch has; their map takes 20 MiB.
constexpr std::size_t MAX_MAPPED_STEPS = 1u << 19;

class AddressMap
{
public:
    /// \a steps begin at the old file's start and make the new file, whose segments are \a newSpans.
    AddressMap(ImageLayout const& oldLayout, std::vector<ImageSpan> const& newSpans,
               std::vector<PatchStep> const& steps);

    /// The new address of what had \a address: where the longest run of bytes that holds it has gone; between runs, as
    /// far as behind the run before it. REQUIRES: an address within the old image.
    std::uint64_t Find(std::uint64_t address) const;

private:
    struct Run
    {
        std::uint32_t begin; ///< in the old image, from its lowest address on
        std::uint32_t end;
        std::uint32_t shift; ///< how much further it stands in the new one, without carry
    };
    struct Point
    {
        std::uint32_t begin;
        std::uint32_t shift; ///< from here on
    };

    std::vector<Run> RunsOf(ImageLayout const& oldLayout, std::vector<ImageSpan> const& newSpans,
                            std::vector<PatchStep> const& steps) const;
    void TakeRuns(std::vector<Run> const& runs);
    void MakeIndex();

    std::uint64_t m_lowest;
    std::vector<Point> m_points;        ///< in ascending order; the first stands at 0
    std::vector<std::uint32_t> m_index; ///< for each page the first point behind its begin
};

} // namespace Pelnar::Engine
