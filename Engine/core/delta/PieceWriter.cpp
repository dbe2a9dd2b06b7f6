#include "Engine/core/delta/PieceWriter.h"

#include "Engine/core/base/Descriptor.h"

#include <cerrno>

namespace Pelnar::Engine
{

bool PieceWriter::Add(int fd, Bytes piece)
{
    // Waking the thread costs more than writing less than a whole piece.
    if (piece.size() < PATCH_PIECE_BYTES)
    {
        m_tasks.Finish();
        Take(fd, piece);
    }
    else
    {
        m_tasks.Post([this, fd, piece] { Take(fd, piece); });
    }
    return IsGood();
}

bool PieceWriter::Finish(ContentHash& hash)
{
    m_tasks.Finish();
    hash = m_hasher.Finish();
    bool const isWritten = IsGood();
    m_error = 0;
    return isWritten;
}

void PieceWriter::Take(int fd, Bytes piece)
{
    m_hasher.Add(piece);
    if (m_error == 0 && !WriteAll(fd, piece))
    {
        m_error = errno;
    }
}

bool PieceWriter::IsGood() const
{
    errno = m_error != 0 ? m_error.load() : errno;
    return m_error == 0;
}

} // namespace Pelnar::Engine
