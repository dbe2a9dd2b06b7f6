#include "Engine/core/delta/PieceWriter.h"

#include <cerrno>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t MANY_PIECES = 2; ///< with this many waiting pieces, the caller writes

} // namespace

void PieceWriter::Start(UniqueFd file, DeltaEntry& entry)
{
    m_file = std::make_shared<File>(File{std::move(file), entry, 0});
}

bool PieceWriter::Add(Bytes piece)
{
    std::uint64_t const place = m_file->bytes;
    m_file->bytes += piece.size();
    std::size_t const waiting = m_tasks.Waiting();
    if (waiting == 0 && piece.size() < PATCH_PIECE_BYTES)
    {
        // Waking the thread takes longer than writing less than a whole piece.
        Write(*m_file, place, piece);
        m_hasher.Add(piece);
    }
    else if (waiting >= MANY_PIECES)
    {
        Write(*m_file, place, piece);
        m_tasks.Post([this, piece] { m_hasher.Add(piece); });
    }
    else
    {
        m_tasks.Post(
            [this, file = m_file, place, piece]
            {
                Write(*file, place, piece);
                m_hasher.Add(piece);
            });
    }
    return IsGood();
}

bool PieceWriter::Add(ByteBuffer piece)
{
    std::uint64_t const place = m_file->bytes;
    m_file->bytes += piece.size();
    auto const owned = std::make_shared<ByteBuffer const>(std::move(piece));
    m_tasks.Post(
        [this, file = m_file, place, owned]
        {
            Write(*file, place, View(*owned));
            m_hasher.Add(View(*owned));
        });
    return IsGood();
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
