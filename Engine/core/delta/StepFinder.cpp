#include "Engine/core/delta/StepFinder.h"

#include <divsufsort.h>

#include <algorithm>
#include <new>

namespace Pelnar::Engine
{
namespace
{

// A new alignment must explain this many more bytes than the current one to be worth a step.
constexpr std::int64_t MIN_GAIN_BYTES = 14;

std::size_t CommonLength(Bytes a, Bytes b)
{
    std::size_t const limit = std::min(a.size(), b.size());
    return static_cast<std::size_t>(
        std::mismatch(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(limit), b.begin()).first - a.begin());
}

/// The steps found so far.
class StepList
{
public:
    void Add(std::int64_t likeBytes, std::int64_t extraBytes, std::int64_t move)
    {
        // A step that makes nothing is merged into the previous one.
        bool const isIdle = likeBytes == 0 && extraBytes == 0;
        if (!isIdle || m_steps.empty())
        {
            End();
            m_steps.push_back({static_cast<std::uint64_t>(likeBytes), static_cast<std::uint64_t>(extraBytes), 0});
        }
        m_move += move;
    }

    /// The last step does not move.
    std::vector<PatchStep> Finish()
    {
        m_move = 0;
        return std::move(m_steps);
    }

private:
    void End()
    {
        if (!m_steps.empty())
        {
            m_steps.back().move = FoldSign(m_move);
        }
        m_move = 0;
    }

    std::vector<PatchStep> m_steps;
    std::int64_t m_move = 0; ///< of the last step so far
};

class StepFinder
{
public:
    StepFinder(SuffixIndex const& index, Bytes newText, std::uint64_t position)
        : m_old(index.Text())
        , m_new(newText)
        , m_index(index)
        , m_oldSize(static_cast<std::int64_t>(m_old.size()))
        , m_newSize(static_cast<std::int64_t>(newText.size()))
        , m_lastPosition(static_cast<std::int64_t>(position))
        , m_offset(m_lastPosition)
    {
    }

    std::vector<PatchStep> Find(std::uint64_t& position)
    {
        while (m_scan < m_newSize)
        {
            std::int64_t const explained = FindNextAlignment();
            if (m_match.length != explained || m_scan == m_newSize)
            {
                EmitStep();
            }
        }
        position = static_cast<std::uint64_t>(m_end);
        return m_steps.Finish();
    }

private:
    bool AreEqual(std::int64_t oldPosition, std::int64_t newPosition) const
    {
        return oldPosition >= 0 && oldPosition < m_oldSize &&
               m_old[static_cast<std::size_t>(oldPosition)] == m_new[static_cast<std::size_t>(newPosition)];
    }

    /// Advances in the new file to the next position where another part of the old file matches clearly better than the
    /// current alignment. Returns how many bytes of that match the current alignment explains too.
    std::int64_t FindNextAlignment()
    {
        std::int64_t explained = 0;
        m_scan += m_match.length;
        for (std::int64_t counted = m_scan; m_scan < m_newSize; ++m_scan)
        {
            m_match = m_index.Longest(m_new.substr(static_cast<std::size_t>(m_scan)), m_scan + m_offset);
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

    /// How far the last alignment can be extended forward while more than half of its bytes match.
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

    /// How far the new alignment can be extended backward in the same way.
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

    /// Splits the bytes that both alignments reach at the point where the two together explain most.
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
        std::int64_t const nextPosition = m_match.position - backward;
        m_end = m_lastPosition + forward;
        m_steps.Add(forward, extraEnd - extraBegin, nextPosition - m_end);

        m_lastScan = extraEnd;
        m_lastPosition = nextPosition;
        m_offset = m_match.position - m_scan;
    }

    Bytes m_old;
    Bytes m_new;
    SuffixIndex const& m_index;
    std::int64_t m_oldSize;
    std::int64_t m_newSize;

    std::int64_t m_scan = 0; ///< the current position in the new file
    TextMatch m_match;       ///< the matching piece of the old file
    std::int64_t m_lastScan = 0;
    std::int64_t m_lastPosition;
    std::int64_t m_offset;  ///< of the current alignment: old position minus new position
    std::int64_t m_end = 0; ///< in the old text, after the similar bytes of the last step
    StepList m_steps;
};

} // namespace

bool SuffixIndex::Build(Bytes text)
{
    if (text.size() > MAX_INDEXED_BYTES)
    {
        return false;
    }
    try
    {
        m_text = text;
        m_order.resize(text.size());
        return text.empty() || divsufsort(text.data(), m_order.data(), static_cast<saidx_t>(text.size())) == 0;
    }
    catch (std::bad_alloc const&)
    {
        return false;
    }
}

TextMatch SuffixIndex::Longest(Bytes wanted, std::int64_t expected) const
{
    TextMatch best;
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
        (isSuffixLess ? low : high) = isSuffixLess ? middle + 1 : middle;
    }
    bool const isWithin = expected >= 0 && expected <= static_cast<std::int64_t>(m_text.size()) - best.length;
    if (isWithin && best.length > 0 &&
        m_text.compare(static_cast<std::size_t>(expected), static_cast<std::size_t>(best.length),
                       wanted.substr(0, static_cast<std::size_t>(best.length))) == 0)
    {
        best.position = expected;
    }
    return best;
}

std::vector<PatchStep> FindSteps(SuffixIndex const& index, Bytes newText, std::uint64_t& position)
{
    return StepFinder(index, newText, position).Find(position);
}

} // namespace Pelnar::Engine
