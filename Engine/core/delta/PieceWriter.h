// PieceWriter.h: hashes and writes files in a thread of its own, while the next pieces are made.
// Thread: one at a time uses it. Ownership: its thread, and the descriptors; pieces and entries stay the caller's.
// If its thread falls behind, the caller writes and the thread only hashes.
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
    /// Begins a file. Its hash is in \a entry once Finish has returned.
    void Start(UniqueFd file, DeltaEntry& entry);
    /// Takes the file's next piece, which stays unchanged until PIECES_AHEAD more calls of Add, or one of Finish, have
    /// returned. False, with errno, if a piece of any file is known to be lost.
    [[nodiscard]] bool Add(Bytes piece);
    /// The same for a piece that it owns.
    [[nodiscard]] bool Add(ByteBuffer piece);
    /// The file has all its pieces.
    void End();
    /// Waits until everything is written. The outcome names the first file that is not.
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

    std::shared_ptr<File> m_file;         ///< that gets pieces
    std::atomic<int> m_error = 0;         ///< errno of the first piece that cannot be written
    DeltaEntry const* m_failed = nullptr; ///< its file's; set by the thread that has set m_error
    ContentHasher m_hasher;
    TaskThread m_tasks{PIECES_AHEAD}; ///< last, as its thread uses the others
};

} // namespace Pelnar::Engine
