#include "Engine/core/delta/PatchApplier.h"

#include <algorithm>
#include <utility>

namespace Pelnar::Engine
{

namespace
{

/// The compiler's loop for many bytes would take longer to start than most runs take.
void AddBytes(Bytes difference, std::uint8_t* target)
{
#pragma clang loop vectorize(disable)
    for (std::uint8_t const byte : difference)
    {
        *target = static_cast<std::uint8_t>(*target + byte);
        ++target;
    }
}

} // namespace

bool PatchStreamReader::Take(std::uint8_t* target, std::size_t size)
{
    while (size > 0)
    {
        Bytes const some = TakeSome(size);
        if (some.empty())
        {
            return false;
        }
        target = std::copy_n(some.data(), some.size(), target);
        size -= some.size();
    }
    return true;
}

PatchVerdict PatchStreamReader::TakeLongNumber(std::uint64_t& number)
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

bool PatchStreamReader::Refill()
{
    m_position = 0;
    m_end = m_source(m_ahead.data(), m_ahead.size());
    return m_end > 0;
}

PatchApplier::PatchApplier(PatchSources const& sources)
    : m_steps(SourceOf(sources, PatchStream::Steps))
    , m_same(SourceOf(sources, PatchStream::Same))
    , m_changed(SourceOf(sources, PatchStream::Changed))
    , m_difference(SourceOf(sources, PatchStream::Difference))
    , m_extra(SourceOf(sources, PatchStream::Extra))
{
}

PatchVerdict PatchApplier::Make(IOldText& old, std::uint64_t newSize, ByteSink const& sink)
{
    StepRange range{old.Size(), m_position, newSize, true};
    return Make(old, newSize, sink, [this, &range](PatchStep& step) { return TakeStep(range, step); });
}

PatchVerdict PatchApplier::TakeSteps(std::uint64_t oldSize, std::uint64_t newSize, std::size_t maxSteps,
                                     std::vector<PatchStep>& steps)
{
    StepRange range{oldSize, m_position, newSize, true};
    while (range.missing > 0)
    {
        PatchStep step;
        if (steps.size() == maxSteps)
        {
            return PatchVerdict::TooManySteps;
        }
        if (PatchVerdict const verdict = TakeStep(range, step); verdict != PatchVerdict::Applied)
        {
            return verdict;
        }
        steps.push_back(step);
    }
    return PatchVerdict::Applied;
}

PatchVerdict PatchApplier::MakeBySteps(IOldText& old, std::vector<PatchStep> const& steps, std::uint64_t newSize,
                                       ByteSink const& sink)
{
    auto next = steps.begin();
    return Make(old, newSize, sink,
                [&next](PatchStep& step)
                {
                    step = *next++;
                    return PatchVerdict::Applied;
                });
}

PatchVerdict PatchApplier::MakeWhole(std::uint64_t size, ByteSink const& sink)
{
    m_sink = &sink;
    PatchVerdict const verdict = TakeExtra(size);
    return verdict == PatchVerdict::Applied && !Flush() ? PatchVerdict::SinkRefused : verdict;
}

PatchVerdict PatchApplier::TakeRecord(std::uint64_t maxBytes, ByteBuffer& record)
{
    std::uint64_t size = 0;
    if (PatchVerdict const verdict = m_extra.TakeNumber(size); verdict != PatchVerdict::Applied)
    {
        return verdict;
    }
    if (size > maxBytes)
    {
        return PatchVerdict::WrongSize;
    }
    // Memory grows with the bytes that come: a damaged size may be large.
    record.clear();
    for (std::uint64_t left = size; left > 0;)
    {
        std::size_t const count = static_cast<std::size_t>(std::min<std::uint64_t>(left, PATCH_PIECE_BYTES));
        record.resize(record.size() + count);
        if (!m_extra.Take(record.data() + record.size() - count, count))
        {
            return PatchVerdict::SourceEnded;
        }
        left -= count;
    }
    return PatchVerdict::Applied;
}

bool PatchApplier::IsUsedUp()
{
    return m_sameLeft == 0 && m_changedLeft == 0 && m_steps.IsAtEnd() && m_same.IsAtEnd() && m_changed.IsAtEnd() &&
           m_difference.IsAtEnd() && m_extra.IsAtEnd();
}

ByteSource const& PatchApplier::SourceOf(PatchSources const& sources, PatchStream stream)
{
    return sources[static_cast<std::size_t>(stream)];
}

PatchVerdict PatchApplier::TakeStep(StepRange& range, PatchStep& step)
{
    for (std::uint64_t* const number : {&step.likeBytes, &step.extraBytes, &step.move})
    {
        if (PatchVerdict const verdict = m_steps.TakeNumber(*number); verdict != PatchVerdict::Applied)
        {
            return verdict;
        }
    }
    // Only the first step may make no bytes: a file of such steps would never end.
    if (step.likeBytes == 0 && step.extraBytes == 0 && !range.isFirst)
    {
        return PatchVerdict::BadNumber;
    }
    range.isFirst = false;
    if (step.likeBytes > range.missing || step.extraBytes > range.missing - step.likeBytes)
    {
        return PatchVerdict::WrongSize;
    }
    if (step.likeBytes > range.oldSize - range.position)
    {
        return PatchVerdict::OutOfRange;
    }
    range.missing -= step.likeBytes + step.extraBytes;
    range.position += step.likeBytes;
    std::uint64_t const distance = step.move / 2 + step.move % 2;
    bool const isBack = step.move % 2 != 0;
    if (distance > (isBack ? range.position : range.oldSize - range.position))
    {
        return PatchVerdict::OutOfRange;
    }
    range.position = MovedBy(range.position, step.move);
    return PatchVerdict::Applied;
}

template <class TakeNextStep>
PatchVerdict PatchApplier::Make(IOldText& old, std::uint64_t newSize, ByteSink const& sink,
                                TakeNextStep const& takeNextStep)
{
    m_sink = &sink;
    for (std::uint64_t made = 0; made < newSize;)
    {
        PatchStep step;
        PatchVerdict verdict = takeNextStep(step);
        verdict = verdict == PatchVerdict::Applied ? TakeLike(old, made, step.likeBytes) : verdict;
        verdict = verdict == PatchVerdict::Applied ? TakeExtra(step.extraBytes) : verdict;
        if (verdict != PatchVerdict::Applied)
        {
            return verdict;
        }
        made += step.likeBytes + step.extraBytes;
        m_position = MovedBy(m_position + step.likeBytes, step.move);
    }
    return Flush() ? PatchVerdict::Applied : PatchVerdict::SinkRefused;
}

/// Takes runs until one has bytes left. A run may continue from one step to the next.
PatchVerdict PatchApplier::TakeRun()
{
    PatchVerdict verdict = PatchVerdict::Applied;
    while (m_sameLeft == 0 && m_changedLeft == 0 && verdict == PatchVerdict::Applied)
    {
        verdict = m_isChangedNext ? m_changed.TakeNumber(m_changedLeft) : m_same.TakeNumber(m_sameLeft);
        bool const isEmpty = m_isChangedNext && verdict == PatchVerdict::Applied && m_changedLeft == 0;
        verdict = isEmpty ? PatchVerdict::BadNumber : verdict;
        m_isChangedNext = !m_isChangedNext;
    }
    return verdict;
}

PatchVerdict PatchApplier::TakeLike(IOldText& old, std::uint64_t newPosition, std::uint64_t size)
{
    if (size > 0)
    {
        old.Start(m_position, newPosition, size);
    }
    PatchVerdict verdict = PatchVerdict::Applied;
    while (size > 0 && verdict == PatchVerdict::Applied)
    {
        std::uint8_t* const target = m_pieces[m_current].data() + m_filled;
        Bytes const piece = old.Next(target, PATCH_PIECE_BYTES - m_filled);
        verdict = piece.data() == target ? TakeCopied(piece.size()) : TakePlain(piece);
        size -= piece.size();
    }
    return verdict;
}

/// Takes bytes of the old file that are not copied yet. Whole pieces that do not change need no copy.
PatchVerdict PatchApplier::TakePlain(Bytes old)
{
    PatchVerdict verdict = PatchVerdict::Applied;
    while (!old.empty() && verdict == PatchVerdict::Applied)
    {
        verdict = TakeRun();
        std::size_t count = PATCH_PIECE_BYTES;
        if (m_sameLeft >= count && old.size() >= count)
        {
            m_sameLeft -= count;
            verdict = Flush() && (*m_sink)(old.substr(0, count)) ? verdict : PatchVerdict::SinkRefused;
        }
        else if (verdict == PatchVerdict::Applied)
        {
            count = FittingBytes(old.size());
            std::copy_n(old.data(), count, m_pieces[m_current].data() + m_filled);
            verdict = TakeCopied(count);
        }
        old.remove_prefix(std::min(count, old.size()));
    }
    return verdict;
}

/// Takes \a count old bytes that are behind the filled part of the current piece: adds the differences.
PatchVerdict PatchApplier::TakeCopied(std::size_t count)
{
    std::uint8_t* next = m_pieces[m_current].data() + m_filled;
    std::uint8_t* const end = next + count;
    while (next < end)
    {
        if (PatchVerdict const verdict = TakeRun(); verdict != PatchVerdict::Applied)
        {
            return verdict;
        }
        std::uint64_t& left = m_sameLeft > 0 ? m_sameLeft : m_changedLeft;
        auto size = static_cast<std::size_t>(std::min<std::uint64_t>(left, static_cast<std::size_t>(end - next)));
        if (&left == &m_changedLeft)
        {
            Bytes const difference = m_difference.TakeSome(size);
            if (difference.empty())
            {
                return PatchVerdict::SourceEnded;
            }
            AddBytes(difference, next);
            size = difference.size();
        }
        left -= size;
        next += size;
    }
    return Advance(count) ? PatchVerdict::Applied : PatchVerdict::SinkRefused;
}

PatchVerdict PatchApplier::TakeExtra(std::uint64_t size)
{
    while (size > 0)
    {
        std::size_t const count = FittingBytes(size);
        if (!m_extra.Take(m_pieces[m_current].data() + m_filled, count))
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

std::size_t PatchApplier::FittingBytes(std::uint64_t size) const
{
    return static_cast<std::size_t>(std::min<std::uint64_t>(size, PATCH_PIECE_BYTES - m_filled));
}

bool PatchApplier::Advance(std::size_t count)
{
    m_filled += count;
    return m_filled < PATCH_PIECE_BYTES || Flush();
}

bool PatchApplier::Flush()
{
    if (m_filled == 0)
    {
        // The next buffer becomes free only with the next piece.
        return true;
    }
    Bytes const piece(m_pieces[m_current].data(), std::exchange(m_filled, 0));
    m_current = (m_current + 1) % m_pieces.size();
    return (*m_sink)(piece);
}

} // namespace Pelnar::Engine
