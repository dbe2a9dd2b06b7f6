// PieceWriter.h: hashes and writes a file in a thread of its own, while the next piece is made.
// Thread: one at a time uses it. Ownership: its thread; descriptors and pieces stay the caller's.
#pragma once

#include "Engine/core/base/ContentHasher.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace Pelnar::Engine
{

class PieceWriter
{
public:
    PieceWriter() = default;
    /// Waits until what was taken is written.
    ~PieceWriter();
    PieceWriter(PieceWriter const&) = delete;
    PieceWriter& operator=(PieceWriter const&) = delete;

    /// Takes the next piece of the file open at \a fd. The piece stays as it is until the next call of Add or Finish
    /// returns. False, with errno, when a piece cannot be written.
    [[nodiscard]] bool Add(int fd, Bytes piece);
    /// Ends the file: from here on nothing uses the descriptor or a piece. False, with errno, when not everything is
    /// written.
    [[nodiscard]] bool Finish(ContentHash& hash);

private:
    void Work();
    bool Take(int fd, Bytes piece);
    bool WaitForLast();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::thread m_thread; ///< from the first large piece on
    int m_fd = -1;
    Bytes m_piece; ///< empty when the thread has nothing to do
    bool m_isEnding = false;
    int m_error = 0; ///< errno of the first piece of the file that cannot be written
    ContentHasher m_hasher;
};

} // namespace Pelnar::Engine
