// PackingThread.h: packs texts in its own thread, while other files are made. Thread: one at a time. Ownership: its
// thread and the texts; the caller keeps the entries.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/base/TaskThread.h"
#include "Engine/core/delta/DeltaManifest.h"
#include "Engine/core/delta/PackedText.h"

#include <atomic>
#include <deque>
#include <memory>
#include <optional>

namespace Pelnar::Engine
{

/// A file that is packed from its text.
struct PackedFile
{
    DeltaEntry& entry;
    PackedBase base; ///< the old text
    ByteBuffer recipe;
    ByteBuffer text;
    std::optional<ByteBuffer> packed = {}; ///< the result; empty if the recipe does not make a file of the entry's size
    std::atomic<bool> isDone = false;

    std::size_t Bytes() const { return base.text.Bytes() + text.size(); }
    void Pack();
};

class PackingThread
{
public:
    void Post(std::unique_ptr<PackedFile> file);
    /// The same for a file after which nothing else is made: packs it at once if the thread has nothing to do.
    void PostLast(std::unique_ptr<PackedFile> file);
    /// Returns the next file in the order of Post; null if it is not done yet.
    [[nodiscard]] std::unique_ptr<PackedFile> TakeDone();
    /// The bytes of all posted texts that have not been taken.
    std::size_t Bytes() const { return m_bytes; }
    /// Waits until all are done.
    void Finish() { m_tasks.Finish(); }

private:
    PackedFile& Append(std::unique_ptr<PackedFile> file);

    std::deque<std::unique_ptr<PackedFile>> m_files; ///< in the order of Post
    std::size_t m_bytes = 0;
    TaskThread m_tasks{static_cast<std::size_t>(-1)}; ///< last, because its thread uses the files
};

} // namespace Pelnar::Engine
