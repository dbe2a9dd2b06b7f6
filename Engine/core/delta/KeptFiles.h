// KeptFiles.h: makes the files that a delta keeps in a thread of its own, while the units are made; the caller helps at
// the end.
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
    /// Waits until the current file is made.
    ~KeptFiles();
    KeptFiles(KeptFiles const&) = delete;
    KeptFiles& operator=(KeptFiles const&) = delete;

    /// REQUIRES: all folders exist.
    void Start();
    /// Calls \a done, in the order of the entries, for files that are made and were not reported before.
    void Report(EntryDone const& done);
    /// Makes what is left, together with the thread. The hash of each file is in its entry then.
    [[nodiscard]] DeltaOutcome Finish(EntryDone const& done);

private:
    /// Makes files until all are begun, or one fails. Calls \a madeOne after each.
    DeltaOutcome Make(std::function<void()> const& madeOne);

    DeltaWork m_work;
    std::vector<DeltaEntry>& m_entries;
    std::vector<std::uint32_t> m_kept;        ///< indices of the kept entries
    std::vector<std::atomic<bool>> m_areMade; ///< of m_kept
    std::atomic<std::size_t> m_next = 0;      ///< of m_kept, that nobody has begun
    std::atomic<bool> m_isGivenUp = false;
    std::size_t m_reported = 0;
    std::future<DeltaOutcome> m_outcome; ///< last: its destructor waits for the thread
};

} // namespace Pelnar::Engine
