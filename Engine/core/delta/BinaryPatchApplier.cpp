#include "Engine/core/delta/BinaryPatch.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t PIECE_BYTES = 64 * 1024;
constexpr std::size_t AHEAD_BYTES = 4 * 1024;

struct Step
{
    std::uint64_t likeBytes;
    std::uint64_t extraBytes;
    std::uint64_t move;
};

/// A stream read ahead: the numbers and most runs are a byte or two.
class StreamReader
{
public:
    explicit StreamReader(ByteSource const& source) : m_source(source) {}

    [[nodiscard]] bool Take(std::uint8_t* target, std::size_t size)
    {
        while (size > 0)
        {
            if (m_position == m_end && !Refill())
            {
                return false;
            }
            std::size_t const count = std::min(size, m_end - m_position);
            std::copy_n(m_ahead.data() + m_position, count, target);
            m_position += count;
            target += count;
            size -= count;
        }
        return true;
    }

    PatchVerdict TakeNumber(std::uint64_t& number)
    {
        number = 0;
        for (int shift = 0;; shift += 7)
        {
            if (m_position == m_end && !Refill())
            {
                return PatchVerdict::SourceEnded;
            }
            std::uint8_t const byte = m_ahead[m_position++];
            bool const isOverlong = byte == 0 && shift > 0;
            bool const isTooLarge = shift == 63 && byte > 1;
            if (isOverlong || isTooLarge)
            {
                return PatchVerdict::BadNumber;
            }
            number |= static_cast<std::uint64_t>(byte & 0x7F) << shift;
            if (byte < 0x80)
            {
                return PatchVerdict::Applied;
            }
        }
    }

    bool IsAtEnd() { return m_position == m_end && !Refill(); }

private:
    bool Refill()
    {
        m_position = 0;
        m_end = m_source(m_ahead.data(), m_ahead.size());
        return m_end > 0;
    }

    ByteSource const& m_source;
    std::array<std::uint8_t, AHEAD_BYTES> m_ahead;
    std::size_t m_position = 0;
    std::size_t m_end = 0;
};

class PatchApplier
{
public:
    PatchApplier(Bytes oldBytes, PatchSources const& sources, std::uint64_t newSize, ByteSink const& sink)
        : m_old(oldBytes)
        , m_missing(newSize)
        , m_steps(SourceOf(sources, PatchStream::Steps))
        , m_same(SourceOf(sources, PatchStream::Same))
        , m_changed(SourceOf(sources, PatchStream::Changed))
        , m_difference(SourceOf(sources, PatchStream::Difference))
        , m_extra(SourceOf(sources, PatchStream::Extra))
        , m_sink(sink)
    {
    }

    PatchVerdict Apply()
    {
        for (bool isFirst = true; m_missing > 0; isFirst = false)
        {
            Step step{};
            PatchVerdict verdict = TakeStep(step);
            // Only the first may do nothing but move: any number of such would be an endless loop.
            bool const isIdle = step.likeBytes == 0 && step.extraBytes == 0 && !isFirst;
            verdict = verdict == PatchVerdict::Applied && isIdle ? PatchVerdict::BadNumber : verdict;
            verdict = verdict == PatchVerdict::Applied ? Apply(step) : verdict;
            if (verdict != PatchVerdict::Applied)
            {
                return verdict;
            }
        }
        if (!Flush())
        {
            return PatchVerdict::SinkRefused;
        }
        bool const isUsedUp = m_sameLeft == 0 && m_changedLeft == 0 && m_steps.IsAtEnd() && m_same.IsAtEnd() &&
                              m_changed.IsAtEnd() && m_difference.IsAtEnd() && m_extra.IsAtEnd();
        return isUsedUp ? PatchVerdict::Applied : PatchVerdict::WrongSize;
    }

private:
    static ByteSource const& SourceOf(PatchSources const& sources, PatchStream stream)
    {
        return sources[static_cast<std::size_t>(stream)];
    }

    PatchVerdict TakeStep(Step& step)
    {
        for (std::uint64_t* const number : {&step.likeBytes, &step.extraBytes, &step.move})
        {
            if (PatchVerdict const verdict = m_steps.TakeNumber(*number); verdict != PatchVerdict::Applied)
            {
                return verdict;
            }
        }
        return PatchVerdict::Applied;
    }

    PatchVerdict Apply(Step const& step)
    {
        if (step.likeBytes > m_missing || step.extraBytes > m_missing - step.likeBytes)
        {
            return PatchVerdict::WrongSize;
        }
        if (step.likeBytes > m_old.size() - m_position)
        {
            return PatchVerdict::OutOfRange;
        }
        m_missing -= step.likeBytes + step.extraBytes;
        if (PatchVerdict const verdict = TakeLike(step.likeBytes); verdict != PatchVerdict::Applied)
        {
            return verdict;
        }
        if (PatchVerdict const verdict = TakeExtra(step.extraBytes); verdict != PatchVerdict::Applied)
        {
            return verdict;
        }
        return Move(step.move) ? PatchVerdict::Applied : PatchVerdict::OutOfRange;
    }

    /// The next run, once the last is used up: they go on across steps.
    PatchVerdict TakeRun()
    {
        PatchVerdict verdict = PatchVerdict::Applied;
        if (!m_isChangedNext)
        {
            verdict = m_same.TakeNumber(m_sameLeft);
        }
        else
        {
            verdict = m_changed.TakeNumber(m_changedLeft);
            verdict = verdict == PatchVerdict::Applied && m_changedLeft == 0 ? PatchVerdict::BadNumber : verdict;
        }
        m_isChangedNext = !m_isChangedNext;
        return verdict;
    }

    PatchVerdict TakeLike(std::uint64_t size)
    {
        while (size > 0)
        {
            if (m_sameLeft == 0 && m_changedLeft == 0)
            {
                if (PatchVerdict const verdict = TakeRun(); verdict != PatchVerdict::Applied)
                {
                    return verdict;
                }
                continue;
            }
            std::uint64_t& left = m_sameLeft > 0 ? m_sameLeft : m_changedLeft;
            std::size_t const count = Room(std::min(size, left));
            std::uint8_t* const target = m_piece.data() + m_filled;
            std::uint8_t const* const old = m_old.data() + m_position;
            if (&left == &m_sameLeft)
            {
                std::copy_n(old, count, target);
            }
            else if (!m_difference.Take(target, count))
            {
                return PatchVerdict::SourceEnded;
            }
            else
            {
                std::transform(target, target + count, old, target,
                               [](std::uint8_t a, std::uint8_t b) { return static_cast<std::uint8_t>(a + b); });
            }
            left -= count;
            m_position += count;
            size -= count;
            if (!Advance(count))
            {
                return PatchVerdict::SinkRefused;
            }
        }
        return PatchVerdict::Applied;
    }

    PatchVerdict TakeExtra(std::uint64_t size)
    {
        while (size > 0)
        {
            std::size_t const count = Room(size);
            if (!m_extra.Take(m_piece.data() + m_filled, count))
            {
                return PatchVerdict::SourceEnded;
            }
            size -= count;
            if (!Advance(count))
            {
                return PatchVerdict::SinkRefused;
            }
        }
        return PatchVerdict::Applied;
    }

    std::size_t Room(std::uint64_t size) const
    {
        return static_cast<std::size_t>(std::min<std::uint64_t>(size, m_piece.size() - m_filled));
    }

    [[nodiscard]] bool Advance(std::size_t count)
    {
        m_filled += count;
        return m_filled < m_piece.size() || Flush();
    }

    [[nodiscard]] bool Flush()
    {
        std::size_t const count = std::exchange(m_filled, 0);
        return count == 0 || m_sink(Bytes(m_piece.data(), count));
    }

    [[nodiscard]] bool Move(std::uint64_t move)
    {
        std::uint64_t const distance = move / 2 + move % 2;
        bool const isBack = move % 2 != 0;
        if (distance > (isBack ? m_position : m_old.size() - m_position))
        {
            return false;
        }
        m_position =
            isBack ? m_position - static_cast<std::size_t>(distance) : m_position + static_cast<std::size_t>(distance);
        return true;
    }

    Bytes m_old;
    std::uint64_t m_missing; ///< bytes that no step has announced yet
    StreamReader m_steps;
    StreamReader m_same;
    StreamReader m_changed;
    StreamReader m_difference;
    StreamReader m_extra;
    ByteSink const& m_sink;
    std::size_t m_position = 0; ///< in the old file; never past its end
    std::uint64_t m_sameLeft = 0;
    std::uint64_t m_changedLeft = 0;
    bool m_isChangedNext = false;
    std::array<std::uint8_t, PIECE_BYTES> m_piece;
    std::size_t m_filled = 0;
};

} // namespace

PatchVerdict ApplyBinaryPatch(Bytes oldBytes, PatchSources const& sources, std::uint64_t newSize, ByteSink const& sink)
{
    return PatchApplier(oldBytes, sources, newSize, sink).Apply();
}

} // namespace Pelnar::Engine
