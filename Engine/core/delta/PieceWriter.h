// PieceWriter.h: hashes and writes a file in a thread of its own, while the next pieces are made.
// Thread: one at a time uses it. Ownership: its thread; descriptors and pieces stay the caller's.
#pragma once

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/base/TaskThread.h"
#include "Engine/core/delta/BinaryPatch.h"

#include <atomic>

namespace Pelnar::Engine
{

class PieceWriter
{
public:
    /// Takes the next piece of the file open at \a fd. The piece stays as it is until Finish, or PIECES_AHEAD more
    /// calls of Add, have returned. False, with errno, once a piece is known to be lost.
    [[nodiscard]] bool Add(int fd, Bytes piece);
    /// Ends the file: from here on nothing uses the descriptor or a piece. False, with errno, when not everything is
    /// written.
    [[nodiscard]] bool Finish(ContentHash& hash);

private:
    void Take(int fd, Bytes piece);
    [[nodiscard]] bool IsGood() const;

    std::atomic<int> m_error = 0; ///< errno of the first piece of the file that cannot be written
    ContentHasher m_hasher;
    TaskThread m_tasks{PIECES_AHEAD}; ///< last, as its thread uses the others
};

} // namespace Pelnar::Engine
