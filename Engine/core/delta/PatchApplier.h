// PatchApplier.h: makes files from the streams of patches, one after the other.
// Thread: one at a time. Ownership: refers to the sources, which outlive it.
#pragma once

#include "Engine/core/delta/OldText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Pelnar::Engine
{

/// Reads a stream ahead, because numbers and most runs have a byte or two.
class PatchStreamReader
{
public:
    explicit PatchStreamReader(ByteSource const& source) : m_source(source) {}

    [[nodiscard]] bool Take(std::uint8_t* target, std::size_t size);
    PatchVerdict TakeNumber(std::uint64_t& number)
    {
        if (m_position == m_end || m_ahead[m_position] >= 0x80)
        {
            return TakeLongNumber(number);
        }
        number = m_ahead[m_position++];
        return PatchVerdict::Applied;
    }
    /// The next bytes, at most \a most, valid until the next call; empty only at the stream's end.
    Bytes TakeSome(std::size_t most)
    {
        std::size_t const count = m_position == m_end && !Refill() ? 0 : std::min(most, m_end - m_position);
        m_position += count;
        return {m_ahead.data() + m_position - count, count};
    }
    bool IsAtEnd() { return m_position == m_end && !Refill(); }

private:
    PatchVerdict TakeLongNumber(std::uint64_t& number);
    bool Refill();

    ByteSource const& m_source;
    std::array<std::uint8_t, 4 * 1024> m_ahead;
    std::size_t m_position = 0;
    std::size_t m_end = 0;
};

/// Constant memory but for the steps that are asked for; any bytes are safe. New bytes come in pieces of at most
/// PATCH_PIECE_BYTES.
class PatchApplier
{
public:
    explicit PatchApplier(PatchSources const& sources);

    /// The next file starts at the beginning of an old text.
    void StartText() { m_position = 0; }
    /// Makes the next file, of \a newSize bytes. It starts at the position in \a old where the last one ended.
    [[nodiscard]] PatchVerdict Make(IOldText& old, std::uint64_t newSize, ByteSink const& sink);
    /// Takes the steps of the next file, at most \a maxSteps, all within the old text.
    [[nodiscard]] PatchVerdict TakeSteps(std::uint64_t oldSize, std::uint64_t newSize, std::size_t maxSteps,
                                         std::vector<PatchStep>& steps);
    /// Makes the file whose \a steps were taken.
    [[nodiscard]] PatchVerdict MakeBySteps(IOldText& old, std::vector<PatchStep> const& steps, std::uint64_t newSize,
                                           ByteSink const& sink);
    /// Makes the next file from the extra stream alone.
    [[nodiscard]] PatchVerdict MakeWhole(std::uint64_t size, ByteSink const& sink);
    /// The next record of the extra stream, of at most \a maxBytes.
    [[nodiscard]] PatchVerdict TakeRecord(std::uint64_t maxBytes, ByteBuffer& record);
    /// True if all streams are at their ends.
    [[nodiscard]] bool IsUsedUp();

private:
    /// What is left to the steps of one file.
    struct StepRange
    {
        std::uint64_t oldSize;
        std::uint64_t position; ///< in the old text, not after its end
        std::uint64_t missing;  ///< bytes of the new file that no step makes yet
        bool isFirst;
    };

    static ByteSource const& SourceOf(PatchSources const& sources, PatchStream stream);
    PatchVerdict TakeStep(StepRange& range, PatchStep& step);
    template <class TakeNextStep>
    PatchVerdict Make(IOldText& old, std::uint64_t newSize, ByteSink const& sink, TakeNextStep const& takeNextStep);
    PatchVerdict TakeRun();
    PatchVerdict TakeLike(IOldText& old, std::uint64_t newPosition, std::uint64_t size);
    PatchVerdict TakePlain(Bytes old);
    PatchVerdict TakeCopied(std::size_t count);
    PatchVerdict TakeExtra(std::uint64_t size);
    /// How many of \a size bytes fit into the current piece.
    std::size_t FittingBytes(std::uint64_t size) const;
    [[nodiscard]] bool Advance(std::size_t count);
    [[nodiscard]] bool Flush();

    PatchStreamReader m_steps;
    PatchStreamReader m_same;
    PatchStreamReader m_changed;
    PatchStreamReader m_difference;
    PatchStreamReader m_extra;
    ByteSink const* m_sink = nullptr; ///< of the current file
    std::uint64_t m_position = 0;     ///< in the old text
    std::uint64_t m_sameLeft = 0;
    std::uint64_t m_changedLeft = 0;
    bool m_isChangedNext = false;
    std::array<std::array<std::uint8_t, PATCH_PIECE_BYTES>, PIECES_AHEAD + 1> m_pieces; ///< filled in turn
    std::size_t m_current = 0;
    std::size_t m_filled = 0; ///< bytes of the current piece
};

} // namespace Pelnar::Engine
