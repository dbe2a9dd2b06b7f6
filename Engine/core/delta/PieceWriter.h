// PieceWriter.h: hashes and writes files in its own thread, while the next pieces are made. If the thread falls behind,
// the caller writes and the thread only hashes. Thread: one at a time. Ownership: its thread and the descriptors; the
// caller keeps pieces and entries.
#pragma once

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/base/Descriptor.h"
#include "Engine/core/base/TaskThread.h"
#include "Engine/core/delta/DeltaContainer.h"

#include <atomic>
#include <memory>

namespace Pelnar::Engine
{

class PieceWriter
{
public:
    /// Begins a file. \a entry gets its hash before Finish returns.
    void Start(UniqueFd file, DeltaEntry& entry);
    /// Takes the file's next piece. The caller must not change it until PIECES_AHEAD more calls of Add, or one of
    /// Finish, have returned. Returns false and sets errno if a piece of any file could not be written.
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
        std::uint64_t bytes; ///< of the pieces so far
    };

    void Write(File const& file, std::uint64_t place, Bytes piece);
    void EndFile(File& file);
    [[nodiscard]] bool IsGood() const;

    std::shared_ptr<File> m_file;         ///< the current file
    std::atomic<int> m_error = 0;         ///< errno of the first piece that cannot be written
    DeltaEntry const* m_failed = nullptr; ///< the path of its file; set by the thread that has set m_error
    ContentHasher m_hasher;
    TaskThread m_tasks{PIECES_AHEAD}; ///< last, because its thread uses the others
};

} // namespace Pelnar::Engine
