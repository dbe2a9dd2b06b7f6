// ArchiveWriter.h: a partial file that a thread of its own works on, so that no disk, however slow, holds the event
// loop up. Bytes wait in a few fixed buffers; when all are full there is no room until the disk has caught up.
// Thread: the one that made it, with Qt's event loop. Ownership: owned by its maker; destroying it drops what has not
// been written, lets the file's lock go, and nothing is called any more.
#pragma once

#include "Engine/core/download/PartialFile.h"
#include "Engine/core/fetch/IBodySink.h"

#include <functional>
#include <memory>

namespace Pelnar::Engine
{

/// What the writer tells, each from the event loop; each may destroy the writer.
struct ArchiveWriterEvents
{
    std::function<void(PartialArchive const&, DownloadSpending const&)> opened;
    std::function<void()> roomMade; ///< after Room() had none
    std::function<void(UniqueFd)> finished;
    std::function<void(EngineError const&)> failed; ///< the last of all
};

class ArchiveWriter
{
public:
    ArchiveWriter(PartialPlace place, ArchiveWriterEvents events);
    ~ArchiveWriter();
    ArchiveWriter(ArchiveWriter const&) = delete;
    ArchiveWriter& operator=(ArchiveWriter const&) = delete;

    void Open();
    BodyRoom Room();
    void Took(qint64 bytes);
    /// Has what was taken written, though its buffer is not full.
    void Flush();
    void Restart(Validators const& validators);
    /// Has the record tell what the archive has cost. REQUIRES: called before the first byte is taken.
    void Count(DownloadSpending const& spent);
    /// Makes durable what has been taken so far.
    void Checkpoint(DownloadSpending const& spent);
    /// Flushes and answers with finished; the descriptor is for reading only.
    void Finish();
    /// Flushes, and calls \a done when all is written; then the file is unlocked.
    void Close(DownloadSpending const& spent, std::function<void()> done);
    /// The same, and removes the file before.
    void Remove(DownloadSpending const& spent, std::function<void()> done);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Pelnar::Engine
