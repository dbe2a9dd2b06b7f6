#include "Engine/core/delta/KeptFiles.h"

#include <chrono>
#include <system_error>

namespace Pelnar::Engine
{
namespace
{

std::vector<std::uint32_t> KeptAmong(std::vector<DeltaEntry> const& entries)
{
    std::vector<std::uint32_t> kept;
    for (std::size_t i = 0; i < entries.size(); ++i)
    {
        if (entries[i].kind == DeltaEntryKind::Kept)
        {
            kept.push_back(static_cast<std::uint32_t>(i));
        }
    }
    return kept;
}

} // namespace

KeptFiles::KeptFiles(DeltaWork const& work, std::vector<DeltaEntry>& entries)
    : m_work(work), m_entries(entries), m_kept(KeptAmong(entries)), m_areMade(m_kept.size())
{
}

KeptFiles::~KeptFiles()
{
    m_isGivenUp = true;
}

void KeptFiles::Start()
{
    if (m_kept.empty())
    {
        return;
    }
    try
    {
        m_outcome = std::async(std::launch::async, [this] { return Make([] {}); });
    }
    catch (std::system_error const&)
    {
        // Without a thread, Finish makes them all.
    }
}

void KeptFiles::Report(EntryDone const& done)
{
    for (; m_reported < m_kept.size() && m_areMade[m_reported]; ++m_reported)
    {
        done(m_entries[m_kept[m_reported]]);
    }
}

DeltaOutcome KeptFiles::Finish(EntryDone const& done)
{
    DeltaOutcome outcome = Make([this, &done] { Report(done); });
    if (m_outcome.valid())
    {
        constexpr std::chrono::milliseconds PERIOD(50);
        while (m_outcome.wait_for(PERIOD) == std::future_status::timeout)
        {
            Report(done);
        }
        DeltaOutcome const other = m_outcome.get();
        outcome = outcome.HasSucceeded() ? other : outcome;
    }
    Report(done);
    return outcome;
}

DeltaOutcome KeptFiles::Make(std::function<void()> const& madeOne)
{
    auto const files = std::make_unique<BundleFiles>(m_work.oldBundleFd, m_work.stagingFd);
    ContentHasher hasher;
    while (!m_isGivenUp)
    {
        std::size_t const index = m_next++;
        if (index >= m_kept.size())
        {
            break;
        }
        DeltaEntry& entry = m_entries[m_kept[index]];
        DeltaOutcome outcome = files->Make(entry, hasher);
        if (!outcome.HasSucceeded())
        {
            m_isGivenUp = true;
            outcome.path = entry.path;
            return outcome;
        }
        entry.hash = hasher.Finish();
        m_areMade[index] = true;
        madeOne();
    }
    return {};
}

} // namespace Pelnar::Engine
