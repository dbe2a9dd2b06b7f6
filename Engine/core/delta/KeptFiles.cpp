#include "Engine/core/delta/KeptFiles.h"

#include <chrono>
#include <system_error>

namespace Pelnar::Engine
{

KeptFiles::KeptFiles(DeltaWork const& work, std::vector<DeltaEntry>& entries)
    : m_files(std::make_unique<BundleFiles>(work.oldBundleFd, work.stagingFd)), m_entries(entries)
{
}

KeptFiles::~KeptFiles()
{
    m_isGivenUp = true;
}

void KeptFiles::Start()
{
    auto const make = [this] { return Make(); };
    try
    {
        m_outcome = std::async(std::launch::async, make);
    }
    catch (std::system_error const&)
    {
        m_outcome = std::async(std::launch::deferred, make); // without a thread, Finish makes them
    }
}

void KeptFiles::Report(EntryDone const& done)
{
    for (std::size_t const passed = m_passed; m_reported < passed; ++m_reported)
    {
        if (m_entries[m_reported].kind == DeltaEntryKind::Kept)
        {
            done(m_entries[m_reported]);
        }
    }
}

DeltaOutcome KeptFiles::Finish(EntryDone const& done)
{
    constexpr std::chrono::milliseconds PERIOD(50);
    while (m_outcome.wait_for(PERIOD) == std::future_status::timeout)
    {
        Report(done);
    }
    DeltaOutcome outcome = m_outcome.get();
    Report(done);
    return outcome;
}

DeltaOutcome KeptFiles::Make()
{
    for (DeltaEntry& entry : m_entries)
    {
        if (entry.kind == DeltaEntryKind::Kept && !m_isGivenUp)
        {
            DeltaOutcome outcome = m_files->Make(entry, m_hasher);
            if (!outcome.HasSucceeded())
            {
                outcome.path = entry.path;
                return outcome;
            }
            entry.hash = m_hasher.Finish();
        }
        ++m_passed;
    }
    return {};
}

} // namespace Pelnar::Engine
