#include "Engine/core/delta/PieceWriter.h"

#include "Engine/core/base/Descriptor.h"

#include <cerrno>
#include <system_error>

namespace Pelnar::Engine
{
namespace
{

/// Waking the thread costs more than writing less than this.
constexpr std::size_t LARGE_PIECE_BYTES = 64 * 1024;

} // namespace

PieceWriter::~PieceWriter()
{
    static_cast<void>(WaitForLast());
    {
        std::lock_guard const lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable())
    {
        m_thread.join();
    }
}

bool PieceWriter::Add(int fd, Bytes piece)
{
    if (!WaitForLast())
    {
        return false;
    }
    if (piece.size() < LARGE_PIECE_BYTES)
    {
        return Take(fd, piece);
    }
    if (!m_thread.joinable())
    {
        try
        {
            m_thread = std::thread([this] { Work(); });
        }
        catch (std::system_error const&)
        {
            return Take(fd, piece); // a system that has no thread for this does it one after the other
        }
    }
    {
        std::lock_guard const lock(m_mutex);
        m_fd = fd;
        m_piece = piece;
    }
    m_changed.notify_all();
    return true;
}

bool PieceWriter::Finish(ContentHash& hash)
{
    bool const isWritten = WaitForLast();
    hash = m_hasher.Finish();
    m_error = 0;
    return isWritten;
}

void PieceWriter::Work()
{
    std::unique_lock lock(m_mutex);
    for (;;)
    {
        m_changed.wait(lock, [this] { return m_isEnding || !m_piece.empty(); });
        if (m_isEnding)
        {
            return;
        }
        lock.unlock();
        static_cast<void>(Take(m_fd, m_piece)); // the next call tells
        lock.lock();
        m_piece = {};
        m_changed.notify_all();
    }
}

/// By the caller's thread only when the other one has nothing to do.
bool PieceWriter::Take(int fd, Bytes piece)
{
    m_hasher.Add(piece);
    if (!WriteAll(fd, piece))
    {
        m_error = errno;
    }
    return m_error == 0;
}

bool PieceWriter::WaitForLast()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_piece.empty(); });
    errno = m_error != 0 ? m_error : errno;
    return m_error == 0;
}

} // namespace Pelnar::Engine
