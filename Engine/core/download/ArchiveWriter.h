// ArchiveWriter.h: a partial file with its own writing thread, so that a slow disk does not block the event loop. Bytes
// wait in a few fixed buffers. When all are full, there is no space until the disk has caught up.
// Thread: its maker's, with Qt's event loop. Ownership: its maker owns it. Destroying it discards unwritten bytes and
// releases the file's lock; no callback follows.
#pragma once

#include "Engine/core/download/PartialFile.h"
#include "Engine/core/fetch/IBodySink.h"

#include <functional>
#include <memory>

namespace Pelnar::Engine
{

/// The writer's callbacks, each from the event loop. Each may destroy the writer.
struct ArchiveWriterEvents
{
    std::function<void(PartialArchive const&, DownloadSpending const&)> opened;
    std::function<void()> roomMade; ///< after Buffer() returned an empty buffer
    std::function<void(UniqueFd)> finished;
    std::function<void(EngineError const&)> failed; ///< the last callback
};

class ArchiveWriter
{
public:
    ArchiveWriter(PartialPlace place, ArchiveWriterEvents events);
    ~ArchiveWriter();
    ArchiveWriter(ArchiveWriter const&) = delete;
    ArchiveWriter& operator=(ArchiveWriter const&) = delete;

    void Open();
    BodyBuffer Buffer();
    void Commit(qint64 bytes);
    /// Writes the taken bytes even if their buffer is not full.
    void Flush();
    void Restart(Validators const& validators);
    /// Writes the archive's cost to the record. REQUIRES: called before the first byte is taken.
    void Count(DownloadSpending const& spent);
    /// Makes the bytes taken so far durable.
    void Checkpoint(DownloadSpending const& spent);
    /// Flushes, then calls finished with a read-only descriptor.
    void Finish();
    /// Flushes, and calls \a done when everything is written; then the file is unlocked.
    void Close(DownloadSpending const& spent, std::function<void()> done);
    /// The same, but removes the file first.
    void Remove(DownloadSpending const& spent, std::function<void()> done);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Pelnar::Engine
