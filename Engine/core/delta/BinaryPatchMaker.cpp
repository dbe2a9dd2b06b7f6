#include "Engine/core/delta/BinaryPatch.h"

#include <divsufsort.h>

#include <algorithm>
#include <new>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

// A new alignment must explain this many bytes more than the current one to be worth a step of the control stream.
constexpr std::int64_t MIN_GAIN_BYTES = 8;

struct Match
{
    std::int64_t position = 0; ///< in the old file
    std::int64_t length = 0;
};

void AppendNumber(ByteBuffer& stream, std::uint64_t number)
{
    for (; number >= 0x80; number >>= 7)
    {
        stream.push_back(static_cast<std::uint8_t>(number | 0x80));
    }
    stream.push_back(static_cast<std::uint8_t>(number));
}

std::uint64_t WithSignAsLowestBit(std::int64_t number)
{
    return number < 0 ? static_cast<std::uint64_t>(-number) * 2 - 1 : static_cast<std::uint64_t>(number) * 2;
}

/// The streams of a patch as its steps come.
class PatchWriter
{
public:
    void AddLike(std::uint8_t oldByte, std::uint8_t newByte)
    {
        ++m_like;
        bool const isSame = oldByte == newByte;
        if (isSame && m_changedRun > 0)
        {
            EndChangedRun();
        }
        if (isSame)
        {
            ++m_sameRun;
            return;
        }
        if (m_changedRun == 0)
        {
            AppendNumber(m_patch[PatchStream::Same], m_sameRun);
            m_sameRun = 0;
        }
        ++m_changedRun;
        m_patch[PatchStream::Difference].push_back(static_cast<std::uint8_t>(newByte - oldByte));
    }

    void AddExtra(Bytes bytes)
    {
        m_extra += bytes.size();
        ByteBuffer& stream = m_patch[PatchStream::Extra];
        stream.insert(stream.end(), bytes.begin(), bytes.end());
    }

    /// Goes on elsewhere in the old file. A step that made nothing becomes part of the one before it.
    void Move(std::int64_t distance)
    {
        if (m_like > 0 || m_extra > 0)
        {
            EndStep();
            m_isOpen = true;
            m_openLike = std::exchange(m_like, 0);
            m_openExtra = std::exchange(m_extra, 0);
        }
        m_isOpen = true;
        m_move += distance;
    }

    BinaryPatch Finish()
    {
        m_move = 0;
        EndStep();
        if (m_changedRun > 0)
        {
            EndChangedRun();
        }
        if (m_sameRun > 0)
        {
            AppendNumber(m_patch[PatchStream::Same], m_sameRun);
        }
        return std::move(m_patch);
    }

private:
    void EndChangedRun() { AppendNumber(m_patch[PatchStream::Changed], std::exchange(m_changedRun, 0)); }

    /// Writes the step whose move has been waited for.
    void EndStep()
    {
        if (m_isOpen)
        {
            AppendNumber(m_patch[PatchStream::Steps], m_openLike);
            AppendNumber(m_patch[PatchStream::Steps], m_openExtra);
            AppendNumber(m_patch[PatchStream::Steps], WithSignAsLowestBit(m_move));
            m_move = 0;
        }
    }

    BinaryPatch m_patch;
    std::uint64_t m_sameRun = 0;
    std::uint64_t m_changedRun = 0;
    std::uint64_t m_like = 0; ///< of the step that is being made
    std::uint64_t m_extra = 0;
    bool m_isOpen = false; ///< there is a step, or a first move, whose whole move is not known yet
    std::uint64_t m_openLike = 0;
    std::uint64_t m_openExtra = 0;
    std::int64_t m_move = 0;
};

/// All suffixes of a text in order, for finding the longest piece of it that another text begins with.
class SuffixIndex
{
public:
    /// False when the index cannot be built.
    [[nodiscard]] bool Build(Bytes text)
    {
        m_text = text;
        m_order.resize(text.size());
        return text.empty() || divsufsort(text.data(), m_order.data(), static_cast<saidx_t>(text.size())) == 0;
    }

    Match Longest(Bytes wanted) const
    {
        Match best;
        if (m_order.empty())
        {
            return best;
        }
        std::size_t low = 0;
        std::size_t high = m_order.size();
        while (low < high)
        {
            std::size_t const middle = low + (high - low) / 2;
            Bytes const suffix = m_text.substr(static_cast<std::size_t>(m_order[middle]));
            std::size_t const common = CommonLength(suffix, wanted);
            if (static_cast<std::int64_t>(common) > best.length)
            {
                best = {m_order[middle], static_cast<std::int64_t>(common)};
            }
            bool const isSuffixLess =
                common < wanted.size() && (common == suffix.size() || suffix[common] < wanted[common]);
            if (isSuffixLess)
            {
                low = middle + 1;
            }
            else
            {
                high = middle;
            }
        }
        return best;
    }

private:
    static std::size_t CommonLength(Bytes a, Bytes b)
    {
        std::size_t const limit = std::min(a.size(), b.size());
        return static_cast<std::size_t>(
            std::mismatch(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(limit), b.begin()).first - a.begin());
    }

    Bytes m_text;
    std::vector<saidx_t> m_order;
};

class PatchMaker
{
public:
    PatchMaker(Bytes oldBytes, Bytes newBytes, SuffixIndex const& index)
        : m_old(oldBytes)
        , m_new(newBytes)
        , m_index(index)
        , m_oldSize(static_cast<std::int64_t>(oldBytes.size()))
        , m_newSize(static_cast<std::int64_t>(newBytes.size()))
    {
    }

    BinaryPatch Make()
    {
        while (m_scan < m_newSize)
        {
            std::int64_t const explained = FindNextAlignment();
            if (m_match.length != explained || m_scan == m_newSize)
            {
                EmitStep();
            }
        }
        return m_writer.Finish();
    }

private:
    bool AreEqual(std::int64_t oldPosition, std::int64_t newPosition) const
    {
        return oldPosition >= 0 && oldPosition < m_oldSize &&
               m_old[static_cast<std::size_t>(oldPosition)] == m_new[static_cast<std::size_t>(newPosition)];
    }

    /// Moves on through the new file to the next place that the old file explains clearly better than the current
    /// alignment does. Answers how many bytes of that match the current alignment explains as well.
    std::int64_t FindNextAlignment()
    {
        std::int64_t explained = 0;
        m_scan += m_match.length;
        for (std::int64_t counted = m_scan; m_scan < m_newSize; ++m_scan)
        {
            m_match = m_index.Longest(m_new.substr(static_cast<std::size_t>(m_scan)));
            for (; counted < m_scan + m_match.length; ++counted)
            {
                explained += AreEqual(counted + m_offset, counted) ? 1 : 0;
            }
            if ((m_match.length == explained && m_match.length != 0) || m_match.length > explained + MIN_GAIN_BYTES)
            {
                break;
            }
            explained -= AreEqual(m_scan + m_offset, m_scan) ? 1 : 0;
        }
        return explained;
    }

    /// How far the last alignment reaches forward while more than half of its bytes agree.
    std::int64_t ForwardReach() const
    {
        std::int64_t reach = 0;
        std::int64_t bestScore = 0;
        std::int64_t equal = 0;
        for (std::int64_t i = 0; m_lastScan + i < m_scan && m_lastPosition + i < m_oldSize;)
        {
            equal += AreEqual(m_lastPosition + i, m_lastScan + i) ? 1 : 0;
            ++i;
            if (equal * 2 - i > bestScore)
            {
                bestScore = equal * 2 - i;
                reach = i;
            }
        }
        return reach;
    }

    /// How far the new alignment reaches back in the same sense.
    std::int64_t BackwardReach() const
    {
        if (m_scan == m_newSize)
        {
            return 0;
        }
        std::int64_t reach = 0;
        std::int64_t bestScore = 0;
        std::int64_t equal = 0;
        for (std::int64_t i = 1; m_scan - i >= m_lastScan && m_match.position >= i; ++i)
        {
            equal += AreEqual(m_match.position - i, m_scan - i) ? 1 : 0;
            if (equal * 2 - i > bestScore)
            {
                bestScore = equal * 2 - i;
                reach = i;
            }
        }
        return reach;
    }

    /// Splits bytes that both alignments reach where the two together explain most.
    void SplitOverlap(std::int64_t& forward, std::int64_t& backward) const
    {
        std::int64_t const overlap = (m_lastScan + forward) - (m_scan - backward);
        if (overlap <= 0)
        {
            return;
        }
        std::int64_t kept = 0;
        std::int64_t bestScore = 0;
        std::int64_t score = 0;
        for (std::int64_t i = 0; i < overlap; ++i)
        {
            std::int64_t const first = forward - overlap + i;
            score += AreEqual(m_lastPosition + first, m_lastScan + first) ? 1 : 0;
            score -= AreEqual(m_match.position - backward + i, m_scan - backward + i) ? 1 : 0;
            if (score > bestScore)
            {
                bestScore = score;
                kept = i + 1;
            }
        }
        forward += kept - overlap;
        backward -= kept;
    }

    void EmitStep()
    {
        std::int64_t forward = ForwardReach();
        std::int64_t backward = BackwardReach();
        SplitOverlap(forward, backward);

        std::int64_t const extraBegin = m_lastScan + forward;
        std::int64_t const extraEnd = m_scan - backward;
        for (std::int64_t i = 0; i < forward; ++i)
        {
            m_writer.AddLike(m_old[static_cast<std::size_t>(m_lastPosition + i)],
                             m_new[static_cast<std::size_t>(m_lastScan + i)]);
        }
        m_writer.AddExtra(
            m_new.substr(static_cast<std::size_t>(extraBegin), static_cast<std::size_t>(extraEnd - extraBegin)));

        std::int64_t const nextPosition = m_match.position - backward;
        m_writer.Move(nextPosition - (m_lastPosition + forward));

        m_lastScan = extraEnd;
        m_lastPosition = nextPosition;
        m_offset = m_match.position - m_scan;
    }

    Bytes m_old;
    Bytes m_new;
    SuffixIndex const& m_index;
    std::int64_t m_oldSize;
    std::int64_t m_newSize;

    std::int64_t m_scan = 0; ///< the place in the new file that is looked at
    Match m_match;           ///< what the old file has for it
    std::int64_t m_lastScan = 0;
    std::int64_t m_lastPosition = 0;
    std::int64_t m_offset = 0; ///< of the current alignment: old position less new position
    PatchWriter m_writer;
};

} // namespace

std::optional<BinaryPatch> MakeBinaryPatch(Bytes oldBytes, Bytes newBytes)
{
    if (oldBytes.size() > MAX_PATCH_SOURCE_BYTES)
    {
        return std::nullopt;
    }
    try
    {
        SuffixIndex index;
        if (!index.Build(oldBytes))
        {
            return std::nullopt;
        }
        return PatchMaker(oldBytes, newBytes, index).Make();
    }
    catch (std::bad_alloc const&)
    {
        return std::nullopt;
    }
}

} // namespace Pelnar::Engine
