// PieceWriter.h: hashes files in its own thread, while the next pieces are made. The thread and the caller share the
// writing. Thread: one at a time. Ownership: its thread and the descriptors; the caller keeps pieces and entries.
#pragma once

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/base/Descriptor.h"
#include "Engine/core/base/TaskThread.h"
#include "Engine/core/delta/DeltaContainer.h"

#include <atomic>
#include <deque>
#include <memory>
#include <mutex>

namespace Pelnar::Engine
{

class PieceWriter
{
public:
    /// Begins a file. \a entry gets its hash before Finish returns. \a oldFiles live until all its pieces are written.
    void Start(UniqueFd file, DeltaEntry& entry, std::shared_ptr<void const> oldFiles = nullptr);
    /// Takes the file's next piece. Unless it is of the old files, the caller must not change it until PIECES_AHEAD
    /// more calls of Add, or one of Finish, have returned. Returns false and sets errno if a piece of any file could
    /// not be written.
    [[nodiscard]] bool Add(Bytes piece);
    /// The same for a piece that the writer then owns.
    [[nodiscard]] bool Add(ByteBuffer piece);
    /// Ends the file: it has all its pieces.
    void End();
    /// Waits until everything is written. The outcome names the first file that could not be written.
    [[nodiscard]] DeltaOutcome Finish();

private:
    struct File
    {
        UniqueFd fd;
        DeltaEntry& entry;
        std::shared_ptr<void const> oldFiles; ///< pieces may be parts of them
        std::uint64_t bytes;                  ///< of the pieces so far
    };

    struct Piece
    {
        std::shared_ptr<File> file;
        std::uint64_t place;
        Bytes bytes;
        std::shared_ptr<ByteBuffer const> owned; ///< null if the caller keeps the bytes
    };

    bool Add(Bytes piece, std::shared_ptr<ByteBuffer const> const& owned);
    void Post(Piece const& piece);
    /// Hashes a piece in the thread, and writes if no other pieces wait for their hash.
    void HashAndWrite(Bytes piece);
    /// Writes the first piece of those that are not written. \a writing is the lock of m_writing.
    void WriteFirst(std::unique_lock<std::mutex> const& writing);
    /// Writes until at most \a most pieces are not written.
    void WriteUntil(std::size_t most);
    std::size_t Unwritten() const;
    void Write(File const& file, std::uint64_t place, Bytes piece);
    void EndFile(File& file);
    [[nodiscard]] bool IsGood() const;

    std::shared_ptr<File> m_file; ///< the current file
    // Two threads that write to one file at a time wait for each other in the kernel, and keep their processors busy.
    std::mutex m_writing;
    mutable std::mutex m_mutex;           ///< for m_unwritten
    std::deque<Piece> m_unwritten;        ///< a piece stays here until it is written
    std::atomic<int> m_error = 0;         ///< errno of the first piece that cannot be written
    DeltaEntry const* m_failed = nullptr; ///< the path of its file; set by the thread that has set m_error
    ContentHasher m_hasher;
    TaskThread m_tasks{PIECES_AHEAD}; ///< last, because its thread uses the others
};

} // namespace Pelnar::Engine
