#include "Engine/core/delta/BinaryPatch.h"

#include <algorithm>
#include <array>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t PIECE_BYTES = 64 * 1024;
constexpr std::size_t STEP_BYTES = 24;

struct Step
{
    std::uint64_t differenceBytes;
    std::uint64_t extraBytes;
    std::int64_t move;
};

std::uint64_t ReadNumber(std::uint8_t const* bytes)
{
    std::uint64_t number = 0;
    for (int i = 7; i >= 0; --i)
    {
        number = number << 8 | bytes[i];
    }
    return number;
}

class PatchApplier
{
public:
    PatchApplier(Bytes oldBytes, std::uint64_t newSize, ByteSource const& difference, ByteSource const& extra,
                 ByteSink const& sink)
        : m_old(oldBytes), m_missing(newSize), m_difference(difference), m_extra(extra), m_sink(sink)
    {
    }

    PatchVerdict Apply(Step const& step)
    {
        if (step.differenceBytes > m_missing || step.extraBytes > m_missing - step.differenceBytes)
        {
            return PatchVerdict::WrongSize;
        }
        if (step.differenceBytes > m_old.size() - m_position)
        {
            return PatchVerdict::OutOfRange;
        }
        if (PatchVerdict const verdict = AddDifference(step.differenceBytes); verdict != PatchVerdict::Applied)
        {
            return verdict;
        }
        if (PatchVerdict const verdict = TakeExtra(step.extraBytes); verdict != PatchVerdict::Applied)
        {
            return verdict;
        }
        return Move(step.move) ? PatchVerdict::Applied : PatchVerdict::OutOfRange;
    }

    std::uint64_t MissingBytes() const { return m_missing; }

private:
    PatchVerdict AddDifference(std::uint64_t size)
    {
        while (size > 0)
        {
            auto const piece = static_cast<std::size_t>(std::min<std::uint64_t>(size, PIECE_BYTES));
            if (!m_difference(m_piece.data(), piece))
            {
                return PatchVerdict::SourceEnded;
            }
            std::uint8_t const* const old = m_old.data() + m_position;
            for (std::size_t i = 0; i < piece; ++i)
            {
                m_piece[i] = static_cast<std::uint8_t>(m_piece[i] + old[i]);
            }
            if (!m_sink(Bytes(m_piece.data(), piece)))
            {
                return PatchVerdict::SinkRefused;
            }
            m_position += piece;
            m_missing -= piece;
            size -= piece;
        }
        return PatchVerdict::Applied;
    }

    PatchVerdict TakeExtra(std::uint64_t size)
    {
        while (size > 0)
        {
            auto const piece = static_cast<std::size_t>(std::min<std::uint64_t>(size, PIECE_BYTES));
            if (!m_extra(m_piece.data(), piece))
            {
                return PatchVerdict::SourceEnded;
            }
            if (!m_sink(Bytes(m_piece.data(), piece)))
            {
                return PatchVerdict::SinkRefused;
            }
            m_missing -= piece;
            size -= piece;
        }
        return PatchVerdict::Applied;
    }

    [[nodiscard]] bool Move(std::int64_t distance)
    {
        if (distance < 0)
        {
            // The magnitude of the lowest number does not fit its own type.
            std::uint64_t const back = ~static_cast<std::uint64_t>(distance) + 1;
            if (back > m_position)
            {
                return false;
            }
            m_position -= static_cast<std::size_t>(back);
            return true;
        }
        if (static_cast<std::uint64_t>(distance) > m_old.size() - m_position)
        {
            return false;
        }
        m_position += static_cast<std::size_t>(distance);
        return true;
    }

    Bytes m_old;
    std::uint64_t m_missing;
    ByteSource const& m_difference;
    ByteSource const& m_extra;
    ByteSink const& m_sink;
    std::size_t m_position = 0; ///< in the old file; never past its end
    std::array<std::uint8_t, PIECE_BYTES> m_piece;
};

} // namespace

PatchVerdict ApplyBinaryPatch(Bytes oldBytes, std::uint64_t controlSize, ByteSource const& control,
                              ByteSource const& difference, ByteSource const& extra, std::uint64_t newSize,
                              ByteSink const& sink)
{
    if (controlSize % STEP_BYTES != 0)
    {
        return PatchVerdict::WrongSize;
    }
    PatchApplier applier(oldBytes, newSize, difference, extra, sink);
    for (std::uint64_t read = 0; read < controlSize; read += STEP_BYTES)
    {
        std::array<std::uint8_t, STEP_BYTES> bytes;
        if (!control(bytes.data(), bytes.size()))
        {
            return PatchVerdict::SourceEnded;
        }
        Step const step{ReadNumber(&bytes[0]), ReadNumber(&bytes[8]),
                        static_cast<std::int64_t>(ReadNumber(&bytes[16]))};
        if (PatchVerdict const verdict = applier.Apply(step); verdict != PatchVerdict::Applied)
        {
            return verdict;
        }
    }
    return applier.MissingBytes() == 0 ? PatchVerdict::Applied : PatchVerdict::WrongSize;
}

} // namespace Pelnar::Engine
