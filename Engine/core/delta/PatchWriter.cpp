#include "Engine/core/delta/PatchWriter.h"

#include <utility>

namespace Pelnar::Engine
{

void PatchWriter::Add(IOldText& old, std::vector<PatchStep> const& steps, Bytes newBytes)
{
    std::size_t made = 0;
    for (PatchStep const& step : steps)
    {
        for (std::uint64_t const number : {step.likeBytes, step.extraBytes, step.move})
        {
            AppendNumber(m_patch[PatchStream::Steps], number);
        }
        if (step.likeBytes > 0)
        {
            old.Start(m_position, made, step.likeBytes);
        }
        for (std::uint64_t left = step.likeBytes; left > 0;)
        {
            Bytes const piece = old.Next(m_piece.data(), m_piece.size());
            AddLike(piece, newBytes.substr(made, piece.size()));
            made += piece.size();
            left -= piece.size();
        }
        AddWhole(newBytes.substr(made, static_cast<std::size_t>(step.extraBytes)));
        made += static_cast<std::size_t>(step.extraBytes);
        m_position = MovedBy(m_position + step.likeBytes, step.move);
    }
}

void PatchWriter::AddRecord(Bytes record)
{
    AppendNumber(m_patch[PatchStream::Extra], record.size());
    AddWhole(record);
}

void PatchWriter::AddWhole(Bytes newBytes)
{
    ByteBuffer& stream = m_patch[PatchStream::Extra];
    stream.insert(stream.end(), newBytes.begin(), newBytes.end());
}

void PatchWriter::AddLike(Bytes oldBytes, Bytes newBytes)
{
    for (std::size_t i = 0; i < oldBytes.size(); ++i)
    {
        bool const isSame = oldBytes[i] == newBytes[i];
        if (isSame && m_changedRun > 0)
        {
            EndChangedRun();
        }
        if (isSame)
        {
            ++m_sameRun;
            continue;
        }
        if (m_changedRun == 0)
        {
            AppendNumber(m_patch[PatchStream::Same], std::exchange(m_sameRun, 0));
        }
        ++m_changedRun;
        m_patch[PatchStream::Difference].push_back(static_cast<std::uint8_t>(newBytes[i] - oldBytes[i]));
    }
}

void PatchWriter::EndChangedRun()
{
    AppendNumber(m_patch[PatchStream::Changed], std::exchange(m_changedRun, 0));
}

BinaryPatch PatchWriter::Finish()
{
    if (m_changedRun > 0)
    {
        EndChangedRun();
    }
    if (m_sameRun > 0)
    {
        AppendNumber(m_patch[PatchStream::Same], std::exchange(m_sameRun, 0));
    }
    return std::move(m_patch);
}

} // namespace Pelnar::Engine
