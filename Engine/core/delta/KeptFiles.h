// KeptFiles.h: makes the files that a delta keeps in a thread of its own, while the units are made.
// Thread: one at a time uses it, and it calls back there. Ownership: its thread; the entries outlive it.
#pragma once

#include "Engine/core/delta/BundleFiles.h"
#include "Engine/core/delta/SeparateApplier.h"

#include <atomic>
#include <future>
#include <vector>

namespace Pelnar::Engine
{

class KeptFiles
{
public:
    KeptFiles(DeltaWork const& work, std::vector<DeltaEntry>& entries);
    /// Waits until the file at hand is made.
    ~KeptFiles();
    KeptFiles(KeptFiles const&) = delete;
    KeptFiles& operator=(KeptFiles const&) = delete;

    /// REQUIRES: all folders exist.
    void Start();
    /// Calls \a done for each file that is made and was not reported before.
    void Report(EntryDone const& done);
    /// Waits until all are made. The hash of each is in its entry then.
    [[nodiscard]] DeltaOutcome Finish(EntryDone const& done);

private:
    DeltaOutcome Make();

    std::unique_ptr<BundleFiles> m_files;
    std::vector<DeltaEntry>& m_entries;
    ContentHasher m_hasher;
    std::atomic<std::size_t> m_passed = 0; ///< entries that the thread is done with
    std::atomic<bool> m_isGivenUp = false;
    std::size_t m_reported = 0;
    std::future<DeltaOutcome> m_outcome; ///< last: its destructor waits for the thread
};

} // namespace Pelnar::Engine
