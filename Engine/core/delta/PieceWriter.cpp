#include "Engine/core/delta/PieceWriter.h"

#include <cerrno>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t MANY_PIECES = 12; ///< with this many pieces without hash or unwritten, the caller writes

} // namespace

void PieceWriter::Start(UniqueFd file, DeltaEntry& entry, std::shared_ptr<void const> oldFiles)
{
    m_file = std::make_shared<File>(File{std::move(file), entry, std::move(oldFiles), 0});
}

bool PieceWriter::Add(Bytes piece)
{
    return Add(piece, nullptr);
}

bool PieceWriter::Add(ByteBuffer piece)
{
    auto const owned = std::make_shared<ByteBuffer const>(std::move(piece));
    return Add(View(*owned), owned);
}

bool PieceWriter::Add(Bytes piece, std::shared_ptr<ByteBuffer const> const& owned)
{
    std::uint64_t const place = m_file->bytes;
    m_file->bytes += piece.size();
    if (m_tasks.Waiting() == 0 && piece.size() < PATCH_PIECE_BYTES)
    {
        // Starting or waking the thread takes longer than writing less than a whole piece. Earlier pieces may be
        // unwritten, and the caller will soon change them.
        WriteUntil(0);
        Write(*m_file, place, piece);
        m_hasher.Add(piece);
    }
    else
    {
        Post({m_file, place, piece, owned});
    }
    return IsGood();
}

void PieceWriter::Post(Piece const& piece)
{
    {
        std::lock_guard const lock(m_mutex);
        m_unwritten.push_back(piece);
    }
    m_tasks.Post([this, piece] { HashAndWrite(piece.bytes); });
    // The thread writes what is left while the caller prepares the next file.
    bool const isBehind = m_tasks.Waiting() >= MANY_PIECES || Unwritten() >= MANY_PIECES;
    if (std::unique_lock const writing(m_writing, std::try_to_lock); isBehind && writing && Unwritten() > 1)
    {
        WriteFirst(writing);
    }
    WriteUntil(PIECES_AHEAD);
}

void PieceWriter::HashAndWrite(Bytes piece)
{
    m_hasher.Add(piece);
    while (m_tasks.Waiting() <= 1)
    {
        std::unique_lock const writing(m_writing, std::try_to_lock);
        if (!writing || Unwritten() == 0)
        {
            break;
        }
        WriteFirst(writing);
    }
}

void PieceWriter::WriteFirst(std::unique_lock<std::mutex> const&)
{
    std::unique_lock lock(m_mutex);
    Piece const piece = m_unwritten.front();
    lock.unlock();
    Write(*piece.file, piece.place, piece.bytes);
    lock.lock();
    m_unwritten.pop_front();
}

void PieceWriter::WriteUntil(std::size_t most)
{
    while (Unwritten() > most)
    {
        std::unique_lock const writing(m_writing);
        if (Unwritten() > most)
        {
            WriteFirst(writing);
        }
    }
}

std::size_t PieceWriter::Unwritten() const
{
    std::lock_guard const lock(m_mutex);
    return m_unwritten.size();
}

void PieceWriter::End()
{
    std::shared_ptr<File> const file = std::exchange(m_file, nullptr);
    if (m_tasks.Waiting() == 0)
    {
        EndFile(*file);
        return;
    }
    m_tasks.Post([this, file] { EndFile(*file); });
}

DeltaOutcome PieceWriter::Finish()
{
    WriteUntil(0);
    m_tasks.Finish();
    return m_failed ? DeltaOutcome{DeltaError::CannotWrite, m_failed->path, m_error} : DeltaOutcome{};
}

void PieceWriter::Write(File const& file, std::uint64_t place, Bytes piece)
{
    int none = 0;
    if (m_error == 0 && !WriteAllAt(file.fd.Get(), place, piece) && m_error.compare_exchange_strong(none, errno))
    {
        m_failed = &file.entry;
    }
}

void PieceWriter::EndFile(File& file)
{
    file.entry.hash = m_hasher.Finish();
}

bool PieceWriter::IsGood() const
{
    errno = m_error != 0 ? m_error.load() : errno;
    return m_error == 0;
}

} // namespace Pelnar::Engine
